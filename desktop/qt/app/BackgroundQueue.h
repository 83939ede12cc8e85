// A queue whose tasks run on background threads, a given number of them at once.

#ifndef WRENVALE_DESKTOP_QT_APP_BACKGROUNDQUEUE_H
#define WRENVALE_DESKTOP_QT_APP_BACKGROUNDQUEUE_H

#include <memory>

#include "desktop/qt/app/BackgroundThreads.h"
#include "platform/Queue.h"

namespace wrenvale::platform {

/// Begins its tasks in the order in which they came. Keeps its threads only while it has tasks.
class BackgroundQueue final : public Queue {
public:
  /// `width`: how many tasks may run at the same time. `threads` outlive the queue, which its tasks
  /// may outlive.
  BackgroundQueue(BackgroundThreads& threads, int width);

  void async(Task task) override;

private:
  struct State;

  static void drain(State& state);

  const std::shared_ptr<State> state_; // shared with the threads
};

} // namespace wrenvale::platform

#endif
