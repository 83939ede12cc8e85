// User defaults in memory, with a second life: what was synchronized survives a crash.

#ifndef WRENVALE_PLATFORM_FAKE_FAKEUSERDEFAULTS_H
#define WRENVALE_PLATFORM_FAKE_FAKEUSERDEFAULTS_H

#include <map>
#include <string>

#include "platform/UserDefaults.h"

namespace wrenvale::platform {

class FakeUserDefaults : public UserDefaults {
public:
  Value objectForKey(std::string_view key) const override;
  void setObject(Value value, std::string_view key) override;
  bool synchronize(std::chrono::milliseconds patience = {}) override;
  bool canBeKept() const override { return !unreadable; }
  ObserverID addObserver(std::string_view key, Observer observer) override;
  void removeObserver(ObserverID id) override;

  /// What a process that starts after a crash at this moment would find at the latest.
  const Value::Dictionary& durable() const { return durable_; }

  Value::Dictionary values;
  bool diskFull = false; ///< synchronize() fails and makes nothing durable
  bool unreadable = false;

private:
  struct Observation {
    std::string key;
    Observer observer;
  };

  Value::Dictionary durable_;
  std::map<ObserverID, Observation> observations_;
  ObserverID lastID_ = 0;
};

} // namespace wrenvale::platform

#endif
