#include "platform/net/RequestGate.h"

namespace wrenvale::platform {

void RequestGate::close() {
  const std::lock_guard lock(mutex_);
  closed_ = true;
  for (auto* stop : inside_)
    stop->request_stop();
}

bool RequestGate::waitUntilEmpty(std::chrono::steady_clock::time_point deadline) {
  std::unique_lock lock(mutex_);
  return left_.wait_until(lock, deadline, [this] { return inside_.empty(); });
}

bool RequestGate::enter(std::stop_source& stop) {
  const std::lock_guard lock(mutex_);
  return !closed_ && inside_.insert(&stop).second;
}

void RequestGate::leave(std::stop_source& stop) {
  const std::lock_guard lock(mutex_);
  inside_.erase(&stop);
  if (inside_.empty()) left_.notify_all();
}

RequestGate::Pass::Pass(RequestGate& gate, std::stop_source& stop)
    : gate_(gate)
    , stop_(stop)
    , granted_(gate.enter(stop)) {}

RequestGate::Pass::~Pass() {
  if (granted_) gate_.leave(stop_);
}

} // namespace wrenvale::platform
