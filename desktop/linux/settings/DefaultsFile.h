// The property-list file of one host's settings, which several processes of the host share.
//
// It is replaced as a whole and in one step, under a lock on "<file>.lock" beside it. A link in its
// place is followed and stays. Any thread; only a lack of memory throws.

#ifndef WRENVALE_DESKTOP_LINUX_SETTINGS_DEFAULTSFILE_H
#define WRENVALE_DESKTOP_LINUX_SETTINGS_DEFAULTSFILE_H

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Value.h"
#include "desktop/linux/settings/Files.h"
#include "desktop/linux/system/Environment.h"

namespace wrenvale::platform {

/// What was found where the file should be.
struct DefaultsContent {
  enum class State {
    absent,
    whole,   // a dictionary; an empty file is an empty one
    damaged, // a file that holds something else, or too much
    blocked, // may not be read, or is no file: nobody knows what is in it
  };
  State state = State::absent;
  Value dictionary = Value(Value::Dictionary()); // empty unless whole
  FileIdentity identity = {};
};

class DefaultsFile {
public:
  /// An absolute path. Nothing is looked at yet.
  explicit DefaultsFile(std::string path)
      : path_(std::move(path)) {}

  /// Changes whenever the content may have; one system call.
  FileIdentity identity() const { return FileIdentity::ofPath(path_.c_str()); }

  DefaultsContent read() const;

  /// Whether its folder may be written to, or made where it is missing.
  bool mayBeReplaced() const;

  struct Merged {
    DefaultsContent content;           // as it is on disk now
    std::vector<std::string> tooLarge; // keys left out: with them the file would be beyond bounds
  };

  /// Applies the changes (a null value removes its key) to what the file holds by now, which is not
  /// read again when it is still the `known` content, and makes the result durable, which takes no
  /// longer than to the deadline when another process holds the lock. Nothing when it could not be
  /// done: the file is as it was. A damaged file is kept under another name, "<file>.damaged" or
  /// that with a number; a blocked one is left alone.
  std::optional<Merged> merge(const Value::Dictionary& changes, FileLock::Deadline deadline,
                              const DefaultsContent& known = {}) const;

private:
  const std::string path_;
};

/// ${XDG_CONFIG_HOME:-$HOME/.config}/<bundle identifier>/defaults.plist. A variable that is no
/// absolute path counts as not set. Empty when there is no folder to be in, or the identifier is no
/// plain file name.
std::filesystem::path defaultsFilePath(std::string_view bundleIdentifier,
                                       const Environment& environment = std::getenv);

} // namespace wrenvale::platform

#endif
