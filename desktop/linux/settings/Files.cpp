#include "desktop/linux/settings/Files.h"

#include <algorithm>
#include <cerrno>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace wrenvale::platform {

namespace {

// Checked before opening: opening alone would wake some devices, and failing to open a missing file
// can take twice as long as stat().
bool isRegularFile(const char* path) {
  struct stat status;
  return ::stat(path, &status) == 0 && S_ISREG(status.st_mode);
}

bool isRegularFile(int file) {
  struct stat status;
  return ::fstat(file, &status) == 0 && S_ISREG(status.st_mode);
}

ssize_t readSome(int file, char* to, std::size_t size) {
  ssize_t count;
  do
    count = ::read(file, to, size);
  while (count < 0 && errno == EINTR);
  return count;
}

} // namespace

// Ignores the stated size, which is wrong for the kernel's own files.
std::optional<std::string> beginningOfFile(const char* path, std::size_t limit) {
  if (!isRegularFile(path)) return std::nullopt;
  const FileDescriptor file(::open(path, O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  if (!file || !isRegularFile(file.get())) return std::nullopt;
  std::string content;
  char block[4096];
  while (content.size() < limit) {
    const auto count = readSome(file.get(), block, std::min(sizeof block, limit - content.size()));
    if (count < 0) return std::nullopt;
    if (count == 0) break;
    content.append(block, static_cast<std::size_t>(count));
  }
  return content;
}

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

bool isAt(const char* path, const FileDescriptor& file) {
  const auto there = FileIdentity::ofPath(path), here = FileIdentity::ofDescriptor(file.get());
  return there.error == 0 && there.device == here.device && there.inode == here.inode;
}

// Tries again with a lock whose file somebody removed or replaced meanwhile: others lock the new
// one.
FileDescriptor lockedFile(const char* path, FileLock::Deadline deadline) {
  for (;;) {
    FileDescriptor file(open(path, O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0600));
    if (!file || !acquire(file.get(), deadline)) return FileDescriptor(-1);
    if (isAt(path, file)) return file;
    flock(file.get(), LOCK_UN);
    // Not for ever: a file system may give a file another number each time.
    if (std::chrono::steady_clock::now() >= deadline) return FileDescriptor(-1);
    std::this_thread::sleep_for(kPause);
  }
}

} // namespace

FileLock::FileLock(const std::string& path, Deadline deadline)
    : file_(lockedFile(path.c_str(), deadline)) {}

// Unlocks before closing: a process forked meanwhile has the file open too.
FileLock::~FileLock() {
  if (isHeld()) flock(file_.get(), LOCK_UN);
}

} // namespace wrenvale::platform
