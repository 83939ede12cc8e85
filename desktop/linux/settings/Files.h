// Files as the settings need them: opened, told apart, locked and read, whatever stands in their
// place.

#ifndef WRENVALE_DESKTOP_LINUX_SETTINGS_FILES_H
#define WRENVALE_DESKTOP_LINUX_SETTINGS_FILES_H

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

namespace wrenvale::platform {

class FileDescriptor {
public:
  /// Takes what `open` returned: -1 is no file.
  explicit FileDescriptor(int descriptor)
      : descriptor_(descriptor) {}
  FileDescriptor(FileDescriptor&& other) noexcept
      : descriptor_(std::exchange(other.descriptor_, -1)) {}
  FileDescriptor(const FileDescriptor&) = delete;
  FileDescriptor& operator=(const FileDescriptor&) = delete;
  ~FileDescriptor() {
    if (descriptor_ >= 0) close(descriptor_);
  }

  explicit operator bool() const { return descriptor_ >= 0; }
  int get() const { return descriptor_; }

private:
  int descriptor_;
};

/// Compares equal while nobody replaced the file, wrote to it or changed who may read it.
struct FileIdentity {
  int error = 0; // why the file cannot be looked at, 0 when it can
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
  std::int64_t size = 0;
  std::int64_t modified = 0; // nanoseconds
  std::int64_t changed = 0;  // nanoseconds; sees a change of permissions

  static FileIdentity of(const struct stat& status);
  static FileIdentity ofDescriptor(int descriptor);
  /// Of the file that the path leads to, links followed.
  static FileIdentity ofPath(const char* path);

  bool operator==(const FileIdentity&) const = default;
};

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

  bool isHeld() const { return static_cast<bool>(file_); }

private:
  const FileDescriptor file_; // none unless the lock is held
};

/// The first `limit` bytes of a regular file, or all of a shorter one. Nothing when there is no
/// such file, it may not be read, or a folder, pipe or device stands there: none of them is waited
/// for. Costs one system call when there is none. Any thread.
std::optional<std::string> beginningOfFile(const char* path, std::size_t limit);

} // namespace wrenvale::platform

#endif
