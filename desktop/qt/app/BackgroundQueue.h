// A queue whose tasks run on background threads, a given number of them at once.

#ifndef WRENVALE_DESKTOP_QT_APP_BACKGROUNDQUEUE_H
#define WRENVALE_DESKTOP_QT_APP_BACKGROUNDQUEUE_H

#include <atomic>
#include <mutex>

#include <QDeadlineTimer>
#include <QThreadPool>

#include "platform/Queue.h"

namespace wrenvale::platform {

/// Begins its tasks in the order in which they came. A thread goes when it has no task; it receives
/// no signals, so that the host's handlers run where the host expects them. Never destroyed.
class BackgroundQueue final : public Queue {
public:
  /// `width`: how many tasks may run at the same time.
  explicit BackgroundQueue(int width);

  void async(Task task) override;

  /// From now on no task begins. Any thread.
  void end();
  /// Waits for the tasks that run, until `deadline` at the most.
  void wait(QDeadlineTimer deadline);

private:
  void run(const Task& task);

  QThreadPool pool_;
  std::mutex mutex_;
  std::size_t waiting_ = 0;
  std::atomic<bool> ended_ = false;
};

} // namespace wrenvale::platform

#endif
