#include "desktop/qt/rate/QtRateWindows.h"

#include "desktop/qt/app/Toolkit.h"
#include "desktop/qt/rate/QtDimmingOverlay.h"
#include "desktop/qt/rate/QtRateWindow.h"

namespace wrenvale::platform {

std::unique_ptr<RateWindow> QtRateWindows::makeRateWindow(RateWindowDelegate& delegate) {
  if (!hasWindows()) return nullptr;
  return std::make_unique<QtRateWindow>(delegate);
}

std::unique_ptr<DimmingOverlay> QtRateWindows::makeOverlay(HostWindow* parent) {
  return std::make_unique<QtDimmingOverlay>(hasWindows() ? parent : nullptr);
}

} // namespace wrenvale::platform
