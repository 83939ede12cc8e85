// The built-in queues: the main queue on Qt's event loop, the background ones on Qt's threads.

#ifndef WRENVALE_DESKTOP_QT_APP_QTQUEUES_H
#define WRENVALE_DESKTOP_QT_APP_QTQUEUES_H

#include <functional>

#include "desktop/qt/app/BackgroundQueue.h"
#include "desktop/qt/app/MainQueue.h"

namespace wrenvale::platform {

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
