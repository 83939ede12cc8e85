// Downloads with libcurl, on the thread that asks for them.

#ifndef WRENVALE_DESKTOP_NET_HTTP_CURLURLLOADING_H
#define WRENVALE_DESKTOP_NET_HTTP_CURLURLLOADING_H

#include <cstddef>
#include <stop_token>

#include "platform/Net.h"

namespace wrenvale::platform {

/// The longest body that is taken, after decompression, in bytes.
inline constexpr std::size_t kLongestBody = 16 * 1024 * 1024;

/// What the contract leaves open:
///   - Only GET over HTTP/1.1, and only http and https addresses, the redirected ones included. At
///     most ten redirections; none leads from https to http.
///   - The heads of one answer may have 256 KiB in all.
///   - The proxies are those of the environment ("http_proxy", "no_proxy" and so on), the trusted
///     certificates those that OpenSSL finds ("SSL_CERT_FILE", "SSL_CERT_DIR", else the system's).
///   - A body without a length in the head may break off unnoticed unless it comes in chunks.
/// Needs no event loop. Several threads at once.
class CurlURLLoading final : public URLLoading {
public:
  std::optional<std::string> sendSynchronousRequest(const URLRequest& request) override;
  /// Requests under way return nothing as soon as they can, later ones at once.
  void cancelAllRequests() { stop_.request_stop(); }

private:
  std::stop_source stop_;
};

} // namespace wrenvale::platform

#endif
