// The host's persistent settings, shared by the framework and the host's own code.

#ifndef WRENVALE_PLATFORM_USERDEFAULTS_H
#define WRENVALE_PLATFORM_USERDEFAULTS_H

#include <chrono>
#include <cstdint>
#include <functional>
#include <string_view>

#include "base/Value.h"

namespace wrenvale::platform {

/// One dictionary per host. Every operation may be called on any thread, before `main` too, and
/// none but `synchronize` waits for the disk to write.
class UserDefaults {
public:
  using Observer = std::function<void()>;
  using ObserverID = std::uint64_t;

  virtual ~UserDefaults() = default;

  /// The value under `key`, null when there is none. Sees what this process wrote at once and what
  /// another process of the host wrote once it is on disk.
  virtual Value objectForKey(std::string_view key) const = 0;

  /// Stores `value` under `key`; a null value removes the key. Reaches the disk soon after, without
  /// the caller waiting. A failure to write keeps the old file whole and is tried again with the
  /// next write. Observers of `key` are called on this thread before the call returns.
  virtual void setObject(Value value, std::string_view key) = 0;

  void removeObjectForKey(std::string_view key) { setObject(Value(), key); }

  /// Waits until everything written so far is durable; false when it could not be made so, or
  /// another process keeps it from that for longer than `patience`.
  virtual bool synchronize(std::chrono::milliseconds patience = std::chrono::seconds(10)) = 0;

  /// Whether what is set can outlive this process, as far as that can be told without writing.
  /// False where the settings may not be read, so that nobody knows what is in them, or not be
  /// written.
  virtual bool canBeKept() const = 0;

  /// Calls `observer` after each change of `key` made by this process, on the thread that made it,
  /// and after one made by another process, on the thread that noticed it.
  virtual ObserverID addObserver(std::string_view key, Observer observer) = 0;
  virtual void removeObserver(ObserverID id) = 0;
};

} // namespace wrenvale::platform

#endif
