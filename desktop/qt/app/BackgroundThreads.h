// The framework's background threads, and how they end with the process.

#ifndef WRENVALE_DESKTOP_QT_APP_BACKGROUNDTHREADS_H
#define WRENVALE_DESKTOP_QT_APP_BACKGROUNDTHREADS_H

#include <chrono>
#include <condition_variable>
#include <mutex>

#include "platform/Queue.h"

namespace wrenvale::platform {

/// Any thread. A thread lives for one task only and receives no signals, so that the host's
/// handlers run where the host expects them.
class BackgroundThreads {
public:
  /// Runs `task` on a thread of its own. False when it is dropped: the process is ending, or the
  /// system has no thread to give.
  bool run(Queue::Task task);

  /// From now on nothing new begins. Waits for what is under way, `patience` at the most.
  void end(std::chrono::milliseconds patience);
  bool isEnding() const;

private:
  bool begin();
  void finish();

  mutable std::mutex mutex_;
  std::condition_variable finished_;
  int running_ = 0;
  bool ending_ = false;
};

} // namespace wrenvale::platform

#endif
