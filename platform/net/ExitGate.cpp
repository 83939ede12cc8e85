#include "platform/net/ExitGate.h"

#include <QCoreApplication>

#include <cstdlib>

namespace wrenvale::platform {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kLongestWait(100);

// Of all the closings of one process together.
Clock::time_point waitDeadline() {
  static const auto deadline = Clock::now() + kLongestWait;
  return deadline;
}

void closeExitGate() {
  exitGate().close();
  exitGate().waitUntilEmpty(waitDeadline());
}

// A thread that ends the process destroys its own objects before everything else.
struct ClosesWithItsThread {
  ~ClosesWithItsThread() { closeExitGate(); }
};

// The routine that was added last is called first.
void closeBeforeApplicationObject() {
  qRemovePostRoutine(closeExitGate);
  qAddPostRoutine(closeExitGate);
}

// The main thread's part: asked for once, done when its event loop comes to it.
class MainThreadPart {
public:
  bool waitUntilDone(const std::stop_token& stop, Clock::time_point deadline) {
    std::unique_lock lock(mutex_);
    if (!asked_)
      QMetaObject::invokeMethod(
          qApp, [this] { carryOut(); }, Qt::QueuedConnection);
    asked_ = true;
    return changed_.wait_until(lock, stop, deadline, [this] { return done_; });
  }

private:
  void carryOut() {
    [[maybe_unused]] static thread_local const ClosesWithItsThread hook;
    closeBeforeApplicationObject();
    const std::lock_guard lock(mutex_);
    done_ = true;
    changed_.notify_all();
  }

  std::mutex mutex_;
  std::condition_variable_any changed_;
  bool asked_ = false;
  bool done_ = false;
};

} // namespace

RequestGate& exitGate() {
  static auto& gate = *new RequestGate;
  return gate;
}

// What was registered last is called first.
void armExitGate() {
  std::atexit(closeExitGate);
}

bool armExitGateForQt(const std::stop_token& stop, Clock::time_point deadline) {
  static auto& mainThreadPart = *new MainThreadPart;
  // For a process that another thread ends.
  armExitGate();
  // Until the main thread has done its part, nothing of Qt is touched but to ask it.
  if (!QCoreApplication::instance() || !mainThreadPart.waitUntilDone(stop, deadline)) return false;
  closeBeforeApplicationObject();
  return QCoreApplication::instance() != nullptr;
}

} // namespace wrenvale::platform
