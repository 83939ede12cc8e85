// Where work runs: the main queue and background queues.

#ifndef WRENVALE_PLATFORM_QUEUE_H
#define WRENVALE_PLATFORM_QUEUE_H

#include <cstddef>
#include <functional>
#include <memory>

namespace wrenvale::platform {

/// Any thread may submit.
class Queue {
public:
  using Task = std::function<void()>;

  /// More are dropped, as nobody means so many: a page's script that never stops, say, would fill
  /// the memory of its host.
  static constexpr std::size_t kMostWaiting = 1000;

  virtual ~Queue() = default;

  /// Runs `task` later, never within this call. An exception that the task throws is dropped; a
  /// task that has not begun when the process ends is dropped too, and so is one that comes while
  /// kMostWaiting others wait.
  virtual void async(Task task) = 0;
};

class Queues {
public:
  virtual ~Queues() = default;

  /// Tasks run on the main thread, one at a time, in order, once the host's event loop runs.
  virtual Queue& mainQueue() = 0;

  /// Tasks run in the background, several at the same time, in no order.
  virtual Queue& globalQueue() = 0;

  /// A new queue whose tasks run in the background, one at a time, in order. No thread exists
  /// before its first task.
  virtual std::unique_ptr<Queue> makeSerialQueue() = 0;
};

} // namespace wrenvale::platform

#endif
