// One HTTP request and its answer.

#ifndef WRENVALE_PLATFORM_NET_HTTPEXCHANGE_H
#define WRENVALE_PLATFORM_NET_HTTPEXCHANGE_H

#include <chrono>
#include <optional>
#include <stop_token>
#include <string>
#include <utility>
#include <vector>

#include <QNetworkProxy>
#include <QUrl>

namespace wrenvale::platform {

/// The longest body that is taken, after decompression, in bytes.
inline constexpr std::size_t kLongestBody = 16 * 1024 * 1024;

struct HTTPQuestion {
  QUrl url;
  /// The address to connect to, so that Qt looks up no name; empty when the host of `url` is an
  /// address itself or the proxy is to look it up.
  QString address{};
  QNetworkProxy proxy{QNetworkProxy::NoProxy};
  std::vector<std::pair<std::string, std::string>> headers{}; ///< instead of Qt's own
  std::chrono::steady_clock::time_point deadline;             ///< for the whole answer
  std::chrono::steady_clock::time_point connectDeadline;      ///< for the request to be on its way
  std::stop_token stop{};                                     ///< gives up at once
};

struct HTTPAnswer {
  bool wasReached = false; ///< something took the connection
  /// Where the answer sends the client instead, as an absolute address; empty for a real answer.
  QUrl redirection{};
  /// The body, of whatever status; nothing when it did not arrive whole or is too long. That a body
  /// broke off is certain to be noticed only when the head tells its length and it is not
  /// compressed.
  std::optional<std::string> body{};
};

/// A GET over HTTP/1.1 that uses neither cache nor cookies nor stored credentials and follows no
/// redirection. Blocks the calling thread, which needs no event loop of its own.
HTTPAnswer httpGet(const HTTPQuestion& question);

} // namespace wrenvale::platform

#endif
