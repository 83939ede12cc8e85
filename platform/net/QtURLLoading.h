// Downloads with Qt Network, on the thread that asks for them.

#ifndef WRENVALE_PLATFORM_NET_QTURLLOADING_H
#define WRENVALE_PLATFORM_NET_QTURLLOADING_H

#include <stop_token>

#include "platform/URLLoading.h"
#include "platform/net/RequestGate.h"

namespace wrenvale::platform {

/// The host's application proxy and TLS settings hold. What the contract leaves open:
///   - Only GET, and only http and https addresses, the redirected ones included. At most ten
///     redirections; none leads from https to http.
///   - A body that is shorter than the answer's head says is none. One without a length in the head
///     (in chunks, compressed, or ended by the end of the connection) may have broken off
///     unnoticed.
///   - Nothing is downloaded without an application object whose event loop runs, and nothing once
///     the first one is destroyed.
/// Several threads at once.
class QtURLLoading final : public URLLoading {
public:
  std::optional<std::string> sendSynchronousRequest(const URLRequest& request) override;
  void cancelAllRequests() override { gate_.close(); }

private:
  RequestGate gate_;
};

} // namespace wrenvale::platform

#endif
