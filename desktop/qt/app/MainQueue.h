// Tasks for the main thread, run by the host's event loop.

#ifndef WRENVALE_DESKTOP_QT_APP_MAINQUEUE_H
#define WRENVALE_DESKTOP_QT_APP_MAINQUEUE_H

#include <deque>
#include <mutex>

#include "platform/Queue.h"

class QObject;

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

} // namespace wrenvale::platform

#endif
