// What a process knows of its settings: the file as last read, and over it what the process wrote.
// Pure data; the owner guards it.

#ifndef WRENVALE_DESKTOP_LINUX_SETTINGS_DEFAULTSMEMORY_H
#define WRENVALE_DESKTOP_LINUX_SETTINGS_DEFAULTSMEMORY_H

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

#include "base/Value.h"
#include "desktop/linux/settings/DefaultsFile.h"

namespace wrenvale::platform {

class DefaultsMemory {
public:
  /// What is to be written, as of one moment.
  struct Batch {
    Value::Dictionary changes; // null removes the key
    DefaultsContent known;     // as lastKnown() was then
    std::uint64_t revision = 0;
  };

  Value find(std::string_view key) const;
  void set(std::string_view key, Value value);
  /// Grows with each set().
  std::uint64_t revision() const { return revision_; }

  Batch unwritten() const;
  /// `batch` was written but for the keys that the file had no room for, and `merged.content` is
  /// now on disk. What was set since the batch was taken stays unwritten.
  void markWritten(const Batch& batch, const DefaultsFile::Merged& merged);
  /// Leaves what is unwritten to another process: this one is its fork.
  void markAllWritten();

  /// Whether adopt() was called ever.
  bool wasRead() const { return wasRead_; }
  /// The file may not be read, so the settings are those from before.
  bool isBlocked() const { return isBlocked_; }
  /// The file that the settings were last taken from.
  const FileIdentity& identity() const { return read_.identity; }
  /// What was last found on disk or written there; as long as it is still there, nobody need read
  /// it again.
  const DefaultsContent& lastKnown() const { return lastKnown_; }
  /// Takes the settings from a newer state of the file. What this process wrote there is forgotten,
  /// as others may have changed it since; a blocked file leaves the settings as they were.
  void adopt(DefaultsContent content);

private:
  struct Change {
    Value value;
    std::uint64_t revision;
    bool isWritten;
  };

  bool wasRead_ = false;
  bool isBlocked_ = false;
  DefaultsContent read_;
  DefaultsContent lastKnown_;
  std::map<std::string, Change, std::less<>> changes_;
  std::uint64_t revision_ = 0;
};

} // namespace wrenvale::platform

#endif
