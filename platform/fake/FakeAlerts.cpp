#include "platform/fake/FakeAlerts.h"

namespace wrenvale::platform {

int FakeAlerts::runModal(const Alert& alert) {
  shown.push_back(alert);
  if (duringModal) duringModal();
  return answer;
}

} // namespace wrenvale::platform
