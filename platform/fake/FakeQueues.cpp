#include "platform/fake/FakeQueues.h"

#include <utility>

namespace wrenvale::platform {

void FakeQueue::async(Task task) {
  if (!hasEnded_ && tasks_.size() < kMostWaiting) tasks_.push_back(std::move(task));
}

void FakeQueue::end() {
  hasEnded_ = true;
  tasks_.clear();
}

bool FakeQueue::step() {
  if (tasks_.empty()) return false;
  const Task task = std::move(tasks_.front());
  tasks_.pop_front();
  try {
    task();
  } catch (const std::exception&) {
    // As the contract says: dropped.
  }
  return true;
}

std::size_t FakeQueue::run() {
  std::size_t count = 0;
  while (step())
    ++count;
  return count;
}

void FakeQueues::endProcess() {
  for (auto* queue : {&main, &global, &serial})
    queue->end();
}

void FakeQueues::runAll() {
  while (global.run() + serial.run() + main.run() > 0) {
  }
}

} // namespace wrenvale::platform
