#include "desktop/qt/app/BackgroundQueue.h"

#include <deque>
#include <mutex>
#include <utility>

namespace wrenvale::platform {

struct BackgroundQueue::State {
  State(BackgroundThreads& threads, int width)
      : threads(threads)
      , width(width) {}

  bool add(Task task);
  Task next();
  void lose();

  BackgroundThreads& threads;
  const int width;
  std::mutex mutex;
  std::deque<Task> tasks;
  int running = 0; // threads
};

// Whether one more thread is to run it.
bool BackgroundQueue::State::add(Task task) {
  const std::lock_guard lock(mutex);
  if (tasks.size() >= kMostWaiting) return false;
  tasks.push_back(std::move(task));
  if (running == width) return false;
  ++running;
  return true;
}

// Null, and one thread less, when nothing is left to do.
Queue::Task BackgroundQueue::State::next() {
  const std::lock_guard lock(mutex);
  if (threads.isEnding()) tasks.clear();
  if (tasks.empty()) {
    --running;
    return nullptr;
  }
  Task task = std::move(tasks.front());
  tasks.pop_front();
  return task;
}

// There was no thread. What waits is dropped unless another one comes to it.
void BackgroundQueue::State::lose() {
  const std::lock_guard lock(mutex);
  if (--running == 0) tasks.clear();
}

BackgroundQueue::BackgroundQueue(BackgroundThreads& threads, int width)
    : state_(std::make_shared<State>(threads, width)) {}

void BackgroundQueue::async(Task task) {
  if (!state_->add(std::move(task))) return;
  if (!state_->threads.run([state = state_] { drain(*state); })) state_->lose();
}

void BackgroundQueue::drain(State& state) {
  while (auto task = state.next()) {
    try {
      task();
    } catch (...) { // dropped, and the next one runs all the same
    }
  }
}

} // namespace wrenvale::platform
