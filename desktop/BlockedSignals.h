// Threads without signals.

#ifndef WRENVALE_DESKTOP_BLOCKEDSIGNALS_H
#define WRENVALE_DESKTOP_BLOCKEDSIGNALS_H

#include <csignal>

namespace wrenvale::platform {

/// Blocks all signals on the thread that makes it, as long as it lives. A thread made meanwhile
/// never receives one, so that the host's handlers run where the host expects them.
class BlockedSignals {
public:
  BlockedSignals() {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before_);
  }
  ~BlockedSignals() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
  BlockedSignals(const BlockedSignals&) = delete;
  BlockedSignals& operator=(const BlockedSignals&) = delete;

private:
  sigset_t before_;
};

} // namespace wrenvale::platform

#endif
