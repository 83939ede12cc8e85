// The built-in queues: the main queue on Qt's event loop, the background ones on Qt's threads.

#ifndef WRENVALE_DESKTOP_QT_APP_QTQUEUES_H
#define WRENVALE_DESKTOP_QT_APP_QTQUEUES_H

#include <atomic>
#include <deque>
#include <functional>
#include <mutex>

#include <QDeadlineTimer>

#include "platform/Queue.h"

class QObject;
class QThreadPool;

namespace wrenvale::platform {

/// Holds its tasks until open(), then lets the event loop run one after the other. After close() it
/// takes none and runs none.
class MainQueue : public Queue {
public:
  void async(Task task) override;

  /// Main thread only, once the event loop runs.
  void open();
  /// Main thread only; drops what has not run.
  void close();

private:
  class Receiver;

  void runOne();
  void wake();

  std::mutex mutex_;
  std::deque<Task> tasks_;
  QObject* receiver_ = nullptr; // lives on the main thread while the queue is open
  bool closed_ = false;
};

/// Begins its tasks in the order in which they came. A thread goes when it has no task; it receives
/// no signals, so that the host's handlers run where the host expects them. Never destroyed.
class BackgroundQueue final : public Queue {
public:
  /// `width`: how many tasks may run at the same time.
  explicit BackgroundQueue(int width)
      : width_(width) {}

  void async(Task task) override;

  /// From now on no task begins. Any thread.
  void end();
  /// Waits for the tasks that run, until `deadline` at the most.
  void wait(QDeadlineTimer deadline);

private:
  QThreadPool& pool();
  void run(const Task& task);

  const int width_;
  std::mutex mutex_;
  QThreadPool* pool_ = nullptr; // from the first task on; a queue may be older than the application
  std::size_t waiting_ = 0;
  std::atomic<bool> ended_ = false;
};

/// Lives until the process ends. When the host's application object goes, or the process exits, no
/// further task begins and downloads under way are given up; what runs is waited for, 80 ms at
/// the most.
class QtQueues {
public:
  explicit QtQueues(void (*cancelDownloads)())
      : cancelDownloads_(cancelDownloads) {}

  MainQueue& mainQueue() { return mainQueue_; }
  BackgroundQueue& globalQueue() { return globalQueue_; }
  BackgroundQueue& serialQueue() { return serialQueue_; }

  /// The host's event loop runs from now on. Main thread only.
  void start();
  /// The process is ending. More than one call does no harm.
  void end();

private:
  void (*const cancelDownloads_)();
  MainQueue mainQueue_;
  BackgroundQueue globalQueue_{16};
  BackgroundQueue serialQueue_{1};
};

} // namespace wrenvale::platform

#endif
