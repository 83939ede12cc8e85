#include <wrenvale/UserDefaults.h>

#include "base/Guard.h"
#include "base/Value.h"
#include "platform/UserDefaults.h"

namespace wrenvale {

Value UserDefaults::objectForKey(std::string_view key) const {
  return guarded([&] { return store_.objectForKey(key); });
}

std::optional<std::string> UserDefaults::stringForKey(std::string_view key) const {
  return guarded([&] { return stringValue(store_.objectForKey(key)); });
}

bool UserDefaults::boolForKey(std::string_view key) const {
  return truthValue(objectForKey(key));
}

std::int64_t UserDefaults::integerForKey(std::string_view key) const {
  return integerValue(objectForKey(key));
}

void UserDefaults::setObject(Value value, std::string_view key) {
  guarded([&] { store_.setObject(std::move(value), key); });
}

void UserDefaults::removeObjectForKey(std::string_view key) {
  setObject(Value(), key);
}

bool UserDefaults::synchronize() {
  return guarded([&] { return store_.synchronize(); });
}

UserDefaults::ObserverID UserDefaults::addObserver(std::string_view key, Observer observer) {
  return guarded([&] { return store_.addObserver(key, std::move(observer)); });
}

void UserDefaults::removeObserver(ObserverID id) {
  guarded([&] { store_.removeObserver(id); });
}

} // namespace wrenvale
