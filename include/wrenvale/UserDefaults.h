// The host's persistent settings, in the domain that Wrenvale keeps its own in.
//
// One property-list file per host: ${XDG_CONFIG_HOME:-$HOME/.config}/<CFBundleIdentifier>/
// defaults.plist. Every operation may be called on any thread, and none but synchronize() waits for
// the disk to write. A value written is on disk within a second, and at the latest when the process
// ends normally. Several processes of one host merge their changes key by key. Nothing here throws.
//
// Keys that Wrenvale uses: "Recommender Last Version", "Recommender Reset Number", "Show Update
// Window", "Version Ratings", "Version Counters" and "Rate Version" are its own. "Purchases" is the
// host's: an array of the product identifiers that the user owns.

#ifndef WRENVALE_USERDEFAULTS_H
#define WRENVALE_USERDEFAULTS_H

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include <wrenvale/Export.h>
#include <wrenvale/Value.h>

namespace wrenvale {

namespace platform {
class UserDefaults;
}

class WRENVALE_EXPORT UserDefaults {
public:
  using Observer = std::function<void()>;
  using ObserverID = std::uint64_t;

  /// The settings of this host; live until the process ends.
  static UserDefaults& standardUserDefaults();

  UserDefaults(const UserDefaults&) = delete;
  UserDefaults& operator=(const UserDefaults&) = delete;

  /// The value under `key`, null when there is none. A change made by another process of the host
  /// is seen once it is on disk.
  Value objectForKey(std::string_view key) const;

  /// Lenient readings: nothing, false or 0 for an absent value or one of another kind. A text such
  /// as "12" or "YES" counts as a number or a truth value.
  std::optional<std::string> stringForKey(std::string_view key) const;
  bool boolForKey(std::string_view key) const;
  std::int64_t integerForKey(std::string_view key) const;

  /// Stores a value of any type; null removes the key. Observers of the key are called, on this
  /// thread, before the call returns.
  void setObject(Value value, std::string_view key);
  void removeObjectForKey(std::string_view key);

  /// Waits until everything written so far is durable; false when it could not be made so (no
  /// permission, disk full). The old file is then whole and the values stay readable in this
  /// process.
  bool synchronize();

  /// Calls `observer` after each change of `key`: on the thread that made it, or, for a change made
  /// by another process, on the thread that noticed it by reading.
  ObserverID addObserver(std::string_view key, Observer observer);
  /// A call under way on another thread may still end after this returns.
  void removeObserver(ObserverID id);

private:
  explicit UserDefaults(platform::UserDefaults& store)
      : store_(store) {}

  platform::UserDefaults& store_;
};

} // namespace wrenvale

using wrenvale::UserDefaults;

#endif
