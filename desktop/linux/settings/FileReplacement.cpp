#include "desktop/linux/settings/FileReplacement.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "desktop/linux/settings/Files.h"

namespace wrenvale::platform {

namespace {

constexpr const char* kTemporary = ".new-";
constexpr time_t kLongestWriting = 60; // seconds

// A full disk shows as a short count first.
bool writeAll(int descriptor, std::string_view content) {
  while (!content.empty()) {
    const auto written = write(descriptor, content.data(), content.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    content.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

bool isLater(const timespec& a, const timespec& b) {
  return a.tv_sec != b.tv_sec ? a.tv_sec > b.tv_sec : a.tv_nsec > b.tv_nsec;
}

timespec justAfter(timespec time) {
  if (++time.tv_nsec < 1'000'000'000) return time;
  return {time.tv_sec + 1, 0};
}

// Two replacements within one tick of the file system's clock may get the same inode, and would
// look the same without this.
bool makeLater(int descriptor, const struct stat& old) {
  struct stat fresh = {};
  if (fstat(descriptor, &fresh) != 0) return false;
  if (isLater(fresh.st_mtim, old.st_mtim)) return true;
  const timespec times[2] = {{0, UTIME_OMIT}, justAfter(old.st_mtim)};
  return futimens(descriptor, times) == 0;
}

// A host that the superuser runs once must not take the file away from the user.
bool takeAfter(int descriptor, const struct stat& old) {
  const bool isOwners = old.st_uid == geteuid() && old.st_gid == getegid();
  if (!isOwners && fchown(descriptor, old.st_uid, old.st_gid) != 0 && errno != EPERM) return false;
  return fchmod(descriptor, old.st_mode & 07777) == 0 && makeLater(descriptor, old);
}

bool fill(int descriptor, const FileReplacement& replacement) {
  if (!writeAll(descriptor, replacement.content)) return false;
  struct stat old = {};
  if (stat(replacement.target.c_str(), &old) == 0 && !takeAfter(descriptor, old)) return false;
  return fsync(descriptor) == 0;
}

bool rename(const std::string& from, const std::string& to) {
  return ::rename(from.c_str(), to.c_str()) == 0;
}

bool putInPlace(const FileReplacement& replacement, const std::string& temporary) {
  const auto& [target, content, aside] = replacement;
  if (!aside.empty() && !rename(target, aside)) return false;
  if (rename(temporary, target)) return true;
  if (!aside.empty()) rename(aside, target);
  return false;
}

bool isOld(const std::string& path) {
  struct stat status = {};
  return stat(path.c_str(), &status) == 0 && status.st_mtime < time(nullptr) - kLongestWriting;
}

// What processes that crashed left behind. A young file may be that of a process which is writing,
// where the file system has no locks.
void removeLeftovers(const std::string& beginning) {
  const auto folder = folderOf(beginning);
  DIR* const entries = opendir(folder.c_str());
  if (!entries) return;
  while (const auto* entry = readdir(entries)) {
    const auto path = folder + "/" + entry->d_name;
    if (path.starts_with(beginning) && isOld(path)) unlink(path.c_str());
  }
  closedir(entries);
}

// Some file systems have nothing to synchronize about a folder and say so with EINVAL.
bool synchronizeFolder(const std::string& path) {
  const FileDescriptor folder(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  return folder && (fsync(folder.get()) == 0 || errno == EINVAL);
}

} // namespace

std::optional<FileIdentity> replaceFile(const FileReplacement& replacement) {
  removeLeftovers(replacement.target + kTemporary);
  auto temporary = replacement.target + kTemporary + "XXXXXX";
  const FileDescriptor file(mkostemp(temporary.data(), O_CLOEXEC));
  if (!file) return std::nullopt;
  if (!fill(file.get(), replacement) || !putInPlace(replacement, temporary)) {
    unlink(temporary.c_str());
    return std::nullopt;
  }
  if (!synchronizeFolder(folderOf(replacement.target))) return std::nullopt;
  return FileIdentity::ofDescriptor(file.get());
}

bool synchronizeFile(const std::string& path) {
  const FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
  return file && fsync(file.get()) == 0 && synchronizeFolder(folderOf(path));
}

bool makeFolder(const std::string& path) {
  if (access(path.c_str(), F_OK) == 0) return true;
  if (errno != ENOENT) return false;
  const auto parent = folderOf(path);
  if (parent != path && !makeFolder(parent)) return false;
  if (mkdir(path.c_str(), 0700) != 0) return errno == EEXIST;
  synchronizeFolder(parent);
  return true;
}

std::string folderOf(const std::string& path) {
  const auto slash = path.find_last_of('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

} // namespace wrenvale::platform
