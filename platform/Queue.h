// Where work runs.

#ifndef WRENVALE_PLATFORM_QUEUE_H
#define WRENVALE_PLATFORM_QUEUE_H

#include <cstddef>
#include <functional>

namespace wrenvale::platform {

/// Any thread may submit. No thread exists before the first task.
class Queue {
public:
  using Task = std::function<void()>;

  /// More are dropped: a page's script that never stops, say, would fill the host's memory.
  static constexpr std::size_t kMostWaiting = 1000;

  virtual ~Queue() = default;

  /// Runs `task` later, never within this call. An exception that the task throws is dropped; a
  /// task that has not begun when the process ends is dropped too, and so is one that comes while
  /// kMostWaiting others wait.
  virtual void async(Task task) = 0;
};

} // namespace wrenvale::platform

#endif
