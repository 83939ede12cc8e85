#include "platform/fake/FakeUserDefaults.h"

#include <vector>

namespace wrenvale::platform {

Value FakeUserDefaults::objectForKey(std::string_view key) const {
  const auto found = values.find(key);
  return found == values.end() ? Value() : found->second;
}

void FakeUserDefaults::setObject(Value value, std::string_view key) {
  if (objectForKey(key) == value) return;
  if (value.isNull()) {
    if (const auto found = values.find(key); found != values.end()) values.erase(found);
  } else {
    values.insert_or_assign(std::string(key), std::move(value));
  }
  std::vector<Observer> observers; // copied, since an observer may add or remove observers
  for (const auto& [id, observation] : observations_)
    if (observation.key == key) observers.push_back(observation.observer);
  for (const auto& observer : observers)
    observer();
}

bool FakeUserDefaults::synchronize(std::chrono::milliseconds) {
  if (diskFull) return false;
  durable_ = values;
  return true;
}

UserDefaults::ObserverID FakeUserDefaults::addObserver(std::string_view key, Observer observer) {
  observations_.emplace(++lastID_, Observation{std::string(key), std::move(observer)});
  return lastID_;
}

void FakeUserDefaults::removeObserver(ObserverID id) {
  observations_.erase(id);
}

} // namespace wrenvale::platform
