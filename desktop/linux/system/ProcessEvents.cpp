#include "desktop/linux/system/ProcessEvents.h"

#include <mutex>
#include <vector>

#include <pthread.h>

namespace wrenvale::platform {

namespace {

struct Listeners {
  std::mutex mutex;
  std::vector<ProcessListener*> all;
};

// Never destroyed: it is needed after the last static object is gone.
Listeners& listeners() {
  static auto& listeners = *new Listeners;
  return listeners;
}

void willFork() {
  listeners().mutex.lock();
  for (auto* listener : listeners().all)
    listener->processWillFork();
}

void didForkInParent() {
  for (auto* listener : listeners().all)
    listener->processDidForkInParent();
  listeners().mutex.unlock();
}

void didForkInChild() {
  for (auto* listener : listeners().all)
    listener->processDidForkInChild();
  listeners().mutex.unlock();
}

// Runs when the library is unloaded, after all that the host registered to run at its exit.
__attribute__((destructor)) void willExit() {
  const std::lock_guard lock(listeners().mutex);
  for (auto* listener : listeners().all)
    listener->processWillExit();
}

} // namespace

void addProcessListener(ProcessListener& listener) {
  [[maybe_unused]] static const int registered =
      pthread_atfork(willFork, didForkInParent, didForkInChild);
  const std::lock_guard lock(listeners().mutex);
  listeners().all.push_back(&listener);
}

void removeProcessListener(ProcessListener& listener) {
  const std::lock_guard lock(listeners().mutex);
  std::erase(listeners().all, &listener);
}

} // namespace wrenvale::platform
