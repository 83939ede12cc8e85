#include "platform/fake/FakeAlerts.h"

namespace wrenvale::platform {

std::optional<int> FakeAlerts::runModal(const Alert& alert, const std::function<void()>& willShow) {
  if (!hasWindows) return std::nullopt;
  willShow();
  shown.push_back(alert);
  if (duringModal) duringModal();
  return answer;
}

} // namespace wrenvale::platform
