// The built-in queues: the main queue on Qt's event loop, the background ones on threads.

#ifndef WRENVALE_DESKTOP_QT_APP_QTQUEUES_H
#define WRENVALE_DESKTOP_QT_APP_QTQUEUES_H

#include "desktop/qt/app/BackgroundQueue.h"
#include "desktop/qt/app/BackgroundThreads.h"
#include "desktop/qt/app/MainQueue.h"
#include "platform/Queue.h"
#include "platform/URLLoading.h"

namespace wrenvale::platform {

/// Lives until the process ends. When the host's application object goes, or the process exits, no
/// further task begins and downloads under way are given up; what runs is waited for, 80 ms at
/// the most.
class QtQueues : public Queues {
public:
  explicit QtQueues(URLLoading& urlLoading)
      : urlLoading_(urlLoading) {}

  MainQueue& mainQueue() override { return mainQueue_; }
  Queue& globalQueue() override { return globalQueue_; }
  std::unique_ptr<Queue> makeSerialQueue() override;

  /// The host's event loop runs from now on. Main thread only.
  void start();
  /// The process is ending. More than one call does no harm.
  void end();

private:
  static constexpr int kGlobalWidth = 16;

  URLLoading& urlLoading_;
  BackgroundThreads threads_;
  MainQueue mainQueue_;
  BackgroundQueue globalQueue_{threads_, kGlobalWidth};
};

} // namespace wrenvale::platform

#endif
