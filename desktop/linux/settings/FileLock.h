// Keeps other processes from changing a file at the same time.

#ifndef WRENVALE_DESKTOP_LINUX_SETTINGS_FILELOCK_H
#define WRENVALE_DESKTOP_LINUX_SETTINGS_FILELOCK_H

#include <chrono>
#include <string>

#include "desktop/linux/settings/FileDescriptor.h"

namespace wrenvale::platform {

/// A lock on the whole of a file made for the purpose; it stays behind, empty. The system releases
/// the lock of a process that dies.
class FileLock {
public:
  using Deadline = std::chrono::steady_clock::time_point;

  /// Waits for the lock no longer than to the deadline: its holder may be stopped.
  FileLock(const std::string& path, Deadline deadline);
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;
  ~FileLock();

  bool isHeld() const { return isHeld_; }

private:
  const FileDescriptor file_;
  const bool isHeld_;
};

} // namespace wrenvale::platform

#endif
