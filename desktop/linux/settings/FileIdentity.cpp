#include "desktop/linux/settings/FileIdentity.h"

#include <cerrno>

namespace wrenvale::platform {

namespace {

std::int64_t nanoseconds(const timespec& time) {
  return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

FileIdentity withError(int error) {
  FileIdentity identity;
  identity.error = error;
  return identity;
}

} // namespace

FileIdentity FileIdentity::of(const struct stat& status) {
  return {.device = status.st_dev,
          .inode = status.st_ino,
          .size = status.st_size,
          .modified = nanoseconds(status.st_mtim),
          .changed = nanoseconds(status.st_ctim)};
}

FileIdentity FileIdentity::ofDescriptor(int descriptor) {
  struct stat status = {};
  return fstat(descriptor, &status) == 0 ? of(status) : withError(errno);
}

FileIdentity FileIdentity::ofPath(const char* path) {
  struct stat status = {};
  return stat(path, &status) == 0 ? of(status) : withError(errno);
}

} // namespace wrenvale::platform
