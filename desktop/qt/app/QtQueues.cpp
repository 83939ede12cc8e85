#include "desktop/qt/app/QtQueues.h"

#include <cstdlib>

#include <unistd.h>

#include <QCoreApplication>

namespace wrenvale::platform {

namespace {

constexpr std::chrono::milliseconds kPatienceAtExit{80};

// What the handlers of the process's end, plain functions, are to end. A forked child has nothing
// to end: the threads are its parent's.
QtQueues* started = nullptr;
pid_t startedBy = 0;

void endStarted() {
  if (getpid() == startedBy) started->end();
}

} // namespace

void QtQueues::start() {
  started = this;
  startedBy = getpid();
  qAddPostRoutine(endStarted); // as a rule, the application object goes before the process
  std::atexit(endStarted);     // a host may exit without
  mainQueue_.open();
}

void QtQueues::end() {
  mainQueue_.close();
  globalQueue_.end();
  serialQueue_.end();
  cancelDownloads_();
  const QDeadlineTimer deadline(kPatienceAtExit);
  globalQueue_.wait(deadline);
  serialQueue_.wait(deadline);
}

} // namespace wrenvale::platform
