// Tells objects that the process ends or forks.

#ifndef WRENVALE_DESKTOP_LINUX_SYSTEM_PROCESSEVENTS_H
#define WRENVALE_DESKTOP_LINUX_SYSTEM_PROCESSEVENTS_H

namespace wrenvale::platform {

/// The calls come for as long as the object is registered, one at a time, and do not throw.
class ProcessListener {
public:
  virtual ~ProcessListener() = default;

  /// The process ends normally: every static object of the host is gone, other threads may run on.
  virtual void processWillExit() = 0;

  /// Around a fork, on the thread that forks: the first before it, then one of the others in each
  /// of the two processes. The child has no other thread.
  virtual void processWillFork() = 0;
  virtual void processDidForkInParent() = 0;
  virtual void processDidForkInChild() = 0;
};

void addProcessListener(ProcessListener& listener);
/// A call under way ends before this returns.
void removeProcessListener(ProcessListener& listener);

} // namespace wrenvale::platform

#endif
