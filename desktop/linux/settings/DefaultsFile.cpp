#include "desktop/linux/settings/DefaultsFile.h"

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

#include "desktop/linux/plist/PropertyList.h"
#include "desktop/linux/settings/FileReplacement.h"
#include "desktop/linux/settings/Files.h"
#include "desktop/linux/system/Environment.h"

namespace wrenvale::platform {

namespace {

using State = DefaultsContent::State;

constexpr int kMostLinks = 40;
constexpr int kMostDamagedFiles = 1000;

DefaultsContent unreadable(FileIdentity identity) {
  const auto state = identity.error == ENOENT ? State::absent : State::blocked;
  return {.state = state, .identity = identity};
}

// All of the file, which is `size` bytes long; nothing when they cannot be read.
std::optional<std::string> contentOf(int descriptor, std::size_t size) {
  std::string content(size, '\0');
  std::size_t filled = 0;
  while (filled < size) {
    const auto count = ::read(descriptor, content.data() + filled, size - filled);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return std::nullopt;
    if (count == 0) return std::nullopt; // nobody knows what the rest was
    filled += static_cast<std::size_t>(count);
  }
  return content;
}

DefaultsContent contentFromBytes(std::string_view bytes, FileIdentity identity) {
  auto dictionary =
      bytes.empty() ? Value(Value::Dictionary()) : valueFromPropertyList(bytes).value_or(Value());
  if (!dictionary.isDictionary()) return {.state = State::damaged, .identity = identity};
  return {State::whole, std::move(dictionary), identity};
}

DefaultsContent contentOfFile(const std::string& path) {
  // A pipe or a device must not make the host wait.
  const FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  const int error = file ? 0 : errno;
  struct stat status = {};
  if (!file || fstat(file.get(), &status) != 0) {
    auto identity = FileIdentity::ofPath(path.c_str());
    const bool appeared = identity.error == 0 && error == ENOENT;
    if (appeared) identity.error = EAGAIN;
    return unreadable(identity);
  }
  const auto identity = FileIdentity::of(status);
  if (!S_ISREG(status.st_mode)) return {.state = State::blocked, .identity = identity};
  const auto size = static_cast<std::size_t>(status.st_size);
  if (size > kMaxPropertyListSize) return {.state = State::damaged, .identity = identity};
  const auto bytes = contentOf(file.get(), size);
  if (!bytes) return {.state = State::blocked, .identity = identity};
  return contentFromBytes(*bytes, identity);
}

// The file that the path leads to, whether it exists or not; nothing when links form a circle.
std::optional<std::string> followLinks(std::string path) {
  for (int i = 0; i < kMostLinks; ++i) {
    char buffer[4096];
    const auto length = readlink(path.c_str(), buffer, sizeof(buffer));
    if (length < 0) return path;
    std::string target(buffer, static_cast<std::size_t>(length));
    path = target.starts_with('/') ? std::move(target) : folderOf(path) + "/" + target;
  }
  return std::nullopt;
}

// An unused name for the damaged file at `path`; empty when all are used.
std::string nameForDamaged(const std::string& path) {
  for (int i = 1; i <= kMostDamagedFiles; ++i) {
    auto name = path + ".damaged" + (i > 1 ? "-" + std::to_string(i) : "");
    struct stat status = {};
    if (lstat(name.c_str(), &status) != 0 && errno == ENOENT) return name;
  }
  return {};
}

bool isApplied(const Value& dictionary, const Value::Dictionary& changes) {
  return std::all_of(changes.begin(), changes.end(), [&](const auto& change) {
    return dictionary.find(change.first) == change.second;
  });
}

Value withChanges(const Value& dictionary, const Value::Dictionary& changes) {
  auto items = dictionary.mutableDictionary();
  for (const auto& [key, value] : changes) {
    if (value.isNull())
      items.erase(key);
    else
      items.insert_or_assign(key, value);
  }
  return Value(std::move(items));
}

std::size_t sizeOf(const Value& value) {
  if (value.isNull()) return 0;
  const auto list = propertyListFromValue(value);
  return list ? list->size() : kMaxPropertyListSize;
}

std::string keyOfLargest(const Value::Dictionary& changes) {
  const auto largest =
      std::max_element(changes.begin(), changes.end(), [](const auto& a, const auto& b) {
        return sizeOf(a.second) < sizeOf(b.second);
      });
  return largest->first;
}

struct Encoded {
  Value dictionary;
  std::string bytes;
  std::vector<std::string> tooLarge;
};

// Applies as many changes as fit, leaving out the largest first.
std::optional<Encoded> encode(const Value& dictionary, Value::Dictionary changes) {
  std::vector<std::string> tooLarge;
  for (;;) {
    auto merged = withChanges(dictionary, changes);
    auto bytes = propertyListFromValue(merged);
    if (bytes) return Encoded{std::move(merged), *std::move(bytes), std::move(tooLarge)};
    if (changes.empty()) return std::nullopt;
    tooLarge.push_back(keyOfLargest(changes));
    changes.erase(tooLarge.back());
  }
}

// A pipe or a device is not to get a lock beside it.
bool isOtherThanAFile(const std::string& path) {
  struct stat status = {};
  return stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode);
}

} // namespace

DefaultsContent DefaultsFile::read() const {
  return contentOfFile(path_);
}

bool DefaultsFile::mayBeReplaced() const {
  const auto target = followLinks(path_);
  if (!target) return false;
  auto folder = folderOf(*target);
  while (eaccess(folder.c_str(), F_OK) != 0 && errno == ENOENT && folder != folderOf(folder))
    folder = folderOf(folder);
  return eaccess(folder.c_str(), W_OK | X_OK) == 0;
}

std::optional<DefaultsFile::Merged> DefaultsFile::merge(const Value::Dictionary& changes,
                                                        FileLock::Deadline deadline,
                                                        const DefaultsContent& known) const {
  const auto target = followLinks(path_);
  if (!target || isOtherThanAFile(*target) || !makeFolder(folderOf(*target))) return std::nullopt;
  const FileLock lock(*target + ".lock", deadline);
  if (!lock.isHeld()) return std::nullopt;

  auto content = known.identity == identity() ? known : contentOfFile(*target);
  if (content.state == State::blocked) return std::nullopt;
  if (content.state != State::damaged && isApplied(content.dictionary, changes)) {
    // An earlier attempt may have written it and then failed to make it durable.
    if (content.state == State::whole && !synchronizeFile(*target)) return std::nullopt;
    return Merged{std::move(content), {}};
  }

  auto encoded = encode(content.dictionary, changes);
  if (!encoded) return std::nullopt;
  FileReplacement replacement{*target, encoded->bytes};
  if (content.state == State::damaged) {
    replacement.moveOldTo = nameForDamaged(*target);
    if (replacement.moveOldTo.empty()) return std::nullopt;
  }
  const auto identity = replaceFile(replacement);
  if (!identity) return std::nullopt;
  return Merged{{State::whole, std::move(encoded->dictionary), *identity},
                std::move(encoded->tooLarge)};
}

namespace {

std::filesystem::path absolutePath(const Environment& environment, const char* name) {
  const auto value = variable(environment, name);
  return value.starts_with('/') ? std::filesystem::path(value) : std::filesystem::path();
}

std::filesystem::path configurationFolder(const Environment& environment) {
  const auto folder = absolutePath(environment, "XDG_CONFIG_HOME");
  if (!folder.empty()) return folder;
  const auto home = absolutePath(environment, "HOME");
  return home.empty() ? home : home / ".config";
}

} // namespace

std::filesystem::path defaultsFilePath(std::string_view bundleIdentifier,
                                       const Environment& environment) {
  const auto folder = configurationFolder(environment);
  if (folder.empty() || !isPlainFileName(bundleIdentifier)) return {};
  return folder / bundleIdentifier / "defaults.plist";
}

} // namespace wrenvale::platform
