#include "platform/qt/QtQueues.h"

#include <cstdlib>
#include <deque>
#include <mutex>
#include <utility>

#include <QCoreApplication>

namespace wrenvale::platform {

namespace {

constexpr std::chrono::milliseconds kPatienceAtExit{80};

// Keeps a thread only while it has tasks.
class SerialQueue final : public Queue {
public:
  explicit SerialQueue(BackgroundThreads& threads)
      : threads_(threads) {}

  void async(Task task) override {
    {
      const std::lock_guard lock(state_->mutex);
      state_->tasks.push_back(std::move(task));
      if (std::exchange(state_->running, true)) return;
    }
    if (!threads_.run([state = state_] { drain(*state); })) drop(*state_);
  }

private:
  struct State {
    std::mutex mutex;
    std::deque<Task> tasks;
    bool running = false;
  };

  static void drain(State& state) {
    while (auto task = next(state)) {
      try {
        task();
      } catch (...) { // dropped, and the next one runs all the same
      }
    }
  }

  static void drop(State& state) {
    const std::lock_guard lock(state.mutex);
    state.running = false;
    state.tasks.clear();
  }

  static Task next(State& state) {
    const std::lock_guard lock(state.mutex);
    if (state.tasks.empty()) {
      state.running = false;
      return nullptr;
    }
    Task task = std::move(state.tasks.front());
    state.tasks.pop_front();
    return task;
  }

  BackgroundThreads& threads_;
  // Shared with the thread, which may outlive the queue.
  std::shared_ptr<State> state_ = std::make_shared<State>();
};

// What the handlers of the process's end, plain functions, are to end.
QtQueues* started = nullptr;

void endStarted() {
  started->end();
}

} // namespace

std::unique_ptr<Queue> QtQueues::makeSerialQueue() {
  return std::make_unique<SerialQueue>(threads_);
}

void QtQueues::start() {
  started = this;
  qAddPostRoutine(endStarted); // as a rule, the application object goes before the process
  std::atexit(endStarted);     // a host may exit without
  mainQueue_.open();
}

void QtQueues::end() {
  mainQueue_.close();
  urlLoading_.cancelAllRequests();
  threads_.end(kPatienceAtExit);
}

} // namespace wrenvale::platform
