// The host's settings in a property-list file.
//
// Reads come from memory; each looks, with one system call, whether another process replaced the
// file, and reads it again if so. A write wakes a thread that exists only while something is to be
// written and that gathers for a moment before it writes. What cannot be written stays readable in
// this process and is tried again with the next write, by synchronize() and at the end of the
// process. Two processes lose nothing of each other: a write changes only the keys that this
// process set.

#ifndef WRENVALE_DESKTOP_LINUX_SETTINGS_LINUXUSERDEFAULTS_H
#define WRENVALE_DESKTOP_LINUX_SETTINGS_LINUXUSERDEFAULTS_H

#include <condition_variable>
#include <filesystem>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "desktop/linux/settings/DefaultsFile.h"
#include "desktop/linux/settings/DefaultsMemory.h"
#include "desktop/linux/settings/DefaultsObservers.h"
#include "desktop/linux/system/ProcessEvents.h"
#include "platform/UserDefaults.h"

namespace wrenvale::platform {

/// Made without a thread, a lock, or anything on disk; the file is read with the first key. What is
/// pending is written when the process ends normally, the object being destroyed or not. A forked
/// child may go on using the object; it leaves to its parent what was pending, and sees that once
/// it is on disk.
class LinuxUserDefaults final : public UserDefaults, private ProcessListener {
public:
  /// An absolute path, or an empty one to keep all in memory; synchronize() is then false as soon
  /// as something was set.
  explicit LinuxUserDefaults(std::filesystem::path file);
  /// Writes what is pending, and waits for it.
  ~LinuxUserDefaults() override;

  Value objectForKey(std::string_view key) const override;

  /// A value that no property list can hold (a null within a collection, too deeply nested, larger
  /// than a whole file may be) changes nothing. One for which the file has no room left beside the
  /// others stays in memory without keeping the others from the disk. Setting what is set already
  /// is written like any other value, as another process may have changed it, but notifies nobody.
  void setObject(Value value, std::string_view key) override;

  /// Gives up after some seconds when another process that is stopped holds the file's lock.
  bool synchronize(std::chrono::milliseconds patience = std::chrono::seconds(10)) override;

  /// Looks at the file and its folder only: a full disk is found out by writing.
  bool canBeKept() const override;

  ObserverID addObserver(std::string_view key, Observer observer) override;
  void removeObserver(ObserverID id) override;

private:
  using Lock = std::unique_lock<std::mutex>;

  std::vector<std::string> refresh() const;
  void notify(const std::vector<std::string>& keys) const;
  void startWriter();
  void writeInBackground();
  bool write(Lock& lock, FileLock::Deadline deadline);

  void processWillExit() override;
  void processWillFork() override;
  void processDidForkInParent() override;
  void processDidForkInChild() override;

  const std::optional<DefaultsFile> file_;
  mutable DefaultsObservers observers_;

  mutable std::mutex mutex_; // guards all below; never held while the disk is written
  mutable DefaultsMemory memory_;
  std::condition_variable changed_; // one of the following
  bool isWriting_ = false;
  bool isWriterRunning_ = false;
  bool isEnding_ = false;
};

} // namespace wrenvale::platform

#endif
