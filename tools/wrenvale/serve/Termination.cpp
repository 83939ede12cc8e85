#include "tools/wrenvale/serve/Termination.h"

#include <csignal>

namespace wrenvale::kit {

namespace {

sigset_t terminationSignals() {
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGINT);
  sigaddset(&signals, SIGTERM);
  return signals;
}

} // namespace

void holdTermination() {
  const auto signals = terminationSignals();
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

void awaitTermination() {
  const auto signals = terminationSignals();
  int signal = 0;
  while (sigwait(&signals, &signal) != 0) {
  }
}

} // namespace wrenvale::kit
