// Who wants to know when a setting changes. Any thread.

#ifndef WRENVALE_DESKTOP_LINUX_SETTINGS_DEFAULTSOBSERVERS_H
#define WRENVALE_DESKTOP_LINUX_SETTINGS_DEFAULTSOBSERVERS_H

#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "platform/UserDefaults.h"

namespace wrenvale::platform {

class DefaultsObservers {
public:
  using Observer = UserDefaults::Observer;
  using ObserverID = UserDefaults::ObserverID;

  ObserverID add(std::string_view key, Observer observer);
  void remove(ObserverID id);

  /// The keys that are observed, each once.
  std::vector<std::string> keys() const;

  /// Calls the observers of the key, in the order they were added, on this thread and with nothing
  /// locked: one may add and remove observers, itself too. What it throws is dropped.
  void notify(std::string_view key) const;

  /// Held around a fork, so that the child gets a list it can use.
  std::mutex& mutex() { return mutex_; }

private:
  struct Entry {
    std::string key;
    std::shared_ptr<const Observer> observer;
  };

  std::vector<ObserverID> idsOf(std::string_view key) const;
  std::shared_ptr<const Observer> observerWithID(ObserverID id) const;

  mutable std::mutex mutex_;
  std::map<ObserverID, Entry> entries_;
  ObserverID lastID_ = 0;
};

} // namespace wrenvale::platform

#endif
