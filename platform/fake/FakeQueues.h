// Queues that run when the test says so, all on the test's own thread.

#ifndef WRENVALE_PLATFORM_FAKE_FAKEQUEUES_H
#define WRENVALE_PLATFORM_FAKE_FAKEQUEUES_H

#include <deque>

#include "platform/Queue.h"

namespace wrenvale::platform {

class FakeQueue : public Queue {
public:
  void async(Task task) override;

  std::size_t size() const { return tasks_.size(); }
  /// Runs the oldest task; false when there was none.
  bool step();
  /// Runs tasks, the ones that they add too, until none is left; returns how many.
  std::size_t run();
  /// The process ends: drops what waits, and whatever comes later.
  void end();

private:
  std::deque<Task> tasks_;
  bool hasEnded_ = false;
};

struct FakeQueues {
  /// Runs background tasks, then main-queue tasks, until all queues are empty.
  void runAll();
  void endProcess();

  FakeQueue main;
  FakeQueue global;
  FakeQueue serial;
};

} // namespace wrenvale::platform

#endif
