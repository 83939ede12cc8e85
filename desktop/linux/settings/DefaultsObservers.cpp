#include "desktop/linux/settings/DefaultsObservers.h"

#include <set>

namespace wrenvale::platform {

DefaultsObservers::ObserverID DefaultsObservers::add(std::string_view key, Observer observer) {
  auto shared = std::make_shared<const Observer>(std::move(observer));
  const std::lock_guard lock(mutex_);
  entries_.emplace(++lastID_, Entry{std::string(key), std::move(shared)});
  return lastID_;
}

void DefaultsObservers::remove(ObserverID id) {
  Entry removed; // destroyed unlocked: what the observer holds may call back
  const std::lock_guard lock(mutex_);
  const auto entry = entries_.find(id);
  if (entry == entries_.end()) return;
  removed = std::move(entry->second);
  entries_.erase(entry);
}

std::vector<std::string> DefaultsObservers::keys() const {
  const std::lock_guard lock(mutex_);
  std::set<std::string> keys;
  for (const auto& [id, entry] : entries_)
    keys.insert(entry.key);
  return {keys.begin(), keys.end()};
}

void DefaultsObservers::notify(std::string_view key) const {
  for (const auto id : idsOf(key)) {
    // Looked up again, since an earlier observer may have removed it.
    const auto observer = observerWithID(id);
    try {
      if (observer && *observer) (*observer)();
    } catch (...) {
      // An observer of the host's threw; the others are called all the same.
    }
  }
}

std::vector<DefaultsObservers::ObserverID> DefaultsObservers::idsOf(std::string_view key) const {
  const std::lock_guard lock(mutex_);
  std::vector<ObserverID> ids;
  for (const auto& [id, entry] : entries_)
    if (entry.key == key) ids.push_back(id);
  return ids;
}

std::shared_ptr<const DefaultsObservers::Observer>
DefaultsObservers::observerWithID(ObserverID id) const {
  const std::lock_guard lock(mutex_);
  const auto entry = entries_.find(id);
  return entry == entries_.end() ? nullptr : entry->second.observer;
}

} // namespace wrenvale::platform
