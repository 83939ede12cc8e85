#include "desktop/qt/app/BackgroundQueue.h"

#include <utility>

#include "desktop/BlockedSignals.h"

namespace wrenvale::platform {

BackgroundQueue::BackgroundQueue(int width) {
  pool_.setObjectName("wrenvale");
  pool_.setMaxThreadCount(width);
  pool_.setExpiryTimeout(0);
}

void BackgroundQueue::async(Task task) {
  const std::lock_guard lock(mutex_);
  if (ended_ || waiting_ == kMostWaiting) return;
  const BlockedSignals blocked;
  pool_.start([this, task = std::move(task)] { run(task); });
  ++waiting_;
}

void BackgroundQueue::run(const Task& task) {
  {
    const std::lock_guard lock(mutex_);
    --waiting_;
  }
  if (ended_) return;
  try {
    task();
  } catch (...) { // dropped, and the next one runs all the same
  }
}

void BackgroundQueue::end() {
  ended_ = true;
  pool_.clear();
}

void BackgroundQueue::wait(QDeadlineTimer deadline) {
  pool_.waitForDone(static_cast<int>(deadline.remainingTime()));
}

} // namespace wrenvale::platform
