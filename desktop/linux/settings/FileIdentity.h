// Tells whether a file is still the one, with the content, that was looked at before.

#ifndef WRENVALE_DESKTOP_LINUX_SETTINGS_FILEIDENTITY_H
#define WRENVALE_DESKTOP_LINUX_SETTINGS_FILEIDENTITY_H

#include <cstdint>

#include <sys/stat.h>

namespace wrenvale::platform {

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

} // namespace wrenvale::platform

#endif
