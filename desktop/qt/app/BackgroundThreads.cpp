#include "desktop/qt/app/BackgroundThreads.h"

#include <system_error>
#include <thread>
#include <utility>

#include <pthread.h>

#include "desktop/BlockedSignals.h"

namespace wrenvale::platform {

bool BackgroundThreads::run(Queue::Task task) {
  if (!begin()) return false;
  try {
    const BlockedSignals blocked;
    std::thread([this, task = std::move(task)]() mutable {
      pthread_setname_np(pthread_self(), "wrenvale");
      try {
        task();
      } catch (...) { // dropped, as the contract of queues says
      }
      task = nullptr; // what the task owns goes before the thread counts as finished
      finish();
    }).detach();
    return true;
  } catch (const std::system_error&) {
    finish();
    return false;
  }
}

bool BackgroundThreads::begin() {
  const std::lock_guard lock(mutex_);
  if (ending_) return false;
  ++running_;
  return true;
}

void BackgroundThreads::finish() {
  const std::lock_guard lock(mutex_);
  --running_;
  finished_.notify_all();
}

void BackgroundThreads::end(std::chrono::milliseconds patience) {
  std::unique_lock lock(mutex_);
  ending_ = true;
  finished_.wait_for(lock, patience, [this] { return running_ == 0; });
}

bool BackgroundThreads::isEnding() const {
  const std::lock_guard lock(mutex_);
  return ending_;
}

} // namespace wrenvale::platform
