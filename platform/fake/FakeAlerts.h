// Message boxes that the test reads and answers.

#ifndef WRENVALE_PLATFORM_FAKE_FAKEALERTS_H
#define WRENVALE_PLATFORM_FAKE_FAKEALERTS_H

#include <functional>
#include <vector>

#include "platform/Alerts.h"

namespace wrenvale::platform {

class FakeAlerts : public Alerts {
public:
  std::optional<int> runModal(const Alert& alert, const std::function<void()>& willShow) override;

  bool hasWindows = true;             ///< without, no alert is shown
  int answer = kAlertAlternateReturn; ///< to every alert
  std::function<void()> duringModal;  ///< what happens while an alert is up; may set `answer`
  std::vector<Alert> shown;           ///< every alert, in order
};

} // namespace wrenvale::platform

#endif
