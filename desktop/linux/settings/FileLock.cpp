#include "desktop/linux/settings/FileLock.h"

#include <cerrno>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>

namespace wrenvale::platform {

namespace {

constexpr std::chrono::milliseconds kPause(1);

bool acquire(int descriptor, FileLock::Deadline deadline) {
  while (flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
    const bool mayTryAgain = errno == EWOULDBLOCK || errno == EINTR;
    if (!mayTryAgain || std::chrono::steady_clock::now() >= deadline) return false;
    std::this_thread::sleep_for(kPause);
  }
  return true;
}

} // namespace

FileLock::FileLock(const std::string& path, Deadline deadline)
    : file_(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0600))
    , isHeld_(file_ && acquire(file_.get(), deadline)) {}

// Closing alone would not do: a process forked meanwhile has the file open too.
FileLock::~FileLock() {
  if (isHeld_) flock(file_.get(), LOCK_UN);
}

} // namespace wrenvale::platform
