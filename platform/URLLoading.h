// Downloads over HTTP.

#ifndef WRENVALE_PLATFORM_URLLOADING_H
#define WRENVALE_PLATFORM_URLLOADING_H

#include <chrono>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace wrenvale::platform {

struct URLRequest {
  std::string url{}; ///< absolute, already percent-encoded
  std::string httpMethod = "GET";
  std::vector<std::pair<std::string, std::string>> headers{}; ///< instead of the client's own
  std::chrono::seconds timeoutInterval{60};                   ///< for the whole exchange
};

/// Background threads only; several may call at once. Nothing is cached and no cookie is kept.
class URLLoading {
public:
  virtual ~URLLoading() = default;

  /// The body of the answer, whatever its status code; nothing when none arrived whole within the
  /// time-out, when it was longer than 16 MiB, or when the process is ending.
  virtual std::optional<std::string> sendSynchronousRequest(const URLRequest& request) = 0;

  /// The process is ending: requests under way return nothing as soon as they can, later ones at
  /// once. Any thread.
  virtual void cancelAllRequests() = 0;
};

} // namespace wrenvale::platform

#endif
