// The work under way, and the way to end all of it.

#ifndef WRENVALE_PLATFORM_NET_REQUESTGATE_H
#define WRENVALE_PLATFORM_NET_REQUESTGATE_H

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <set>
#include <stop_token>

namespace wrenvale::platform {

/// Any thread. Once closed a gate stays closed.
class RequestGate {
public:
  RequestGate() = default;
  RequestGate(const RequestGate&) = delete;
  RequestGate& operator=(const RequestGate&) = delete;

  /// Asks everything that holds a pass to stop; gives out no pass from now on.
  void close();

  /// Waits until no pass is held; false when one still is at `deadline`.
  bool waitUntilEmpty(std::chrono::steady_clock::time_point deadline);

  /// Held by a piece of work for as long as it runs. Work whose pass is not granted must not begin.
  class Pass {
  public:
    /// `stop` is how the gate asks this work to stop; it outlives the pass.
    Pass(RequestGate& gate, std::stop_source& stop);
    Pass(const Pass&) = delete;
    Pass& operator=(const Pass&) = delete;
    ~Pass();

    bool isGranted() const { return granted_; }

  private:
    RequestGate& gate_;
    std::stop_source& stop_;
    const bool granted_;
  };

private:
  bool enter(std::stop_source& stop);
  void leave(std::stop_source& stop);

  std::mutex mutex_;
  std::condition_variable left_;
  std::set<std::stop_source*> inside_;
  bool closed_ = false;
};

} // namespace wrenvale::platform

#endif
