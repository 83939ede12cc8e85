#include "platform/qt/QtRateWindows.h"

#include "platform/qt/QtDimmingOverlay.h"
#include "platform/qt/QtRateWindow.h"
#include "platform/qt/Toolkit.h"

namespace wrenvale::platform {

std::unique_ptr<RateWindow> QtRateWindows::makeRateWindow(RateWindowDelegate& delegate) {
  if (!hasWindows()) return nullptr;
  return std::make_unique<QtRateWindow>(delegate);
}

std::unique_ptr<DimmingOverlay> QtRateWindows::makeOverlay(HostWindow* parent) {
  return std::make_unique<QtDimmingOverlay>(hasWindows() ? parent : nullptr);
}

} // namespace wrenvale::platform
