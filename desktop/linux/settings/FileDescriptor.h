// Closes a file descriptor when its owner goes out of scope.

#ifndef WRENVALE_DESKTOP_LINUX_SETTINGS_FILEDESCRIPTOR_H
#define WRENVALE_DESKTOP_LINUX_SETTINGS_FILEDESCRIPTOR_H

#include <utility>

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

} // namespace wrenvale::platform

#endif
