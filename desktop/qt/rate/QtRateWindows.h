// Makes the rate window and its overlay, as Qt widgets.

#ifndef WRENVALE_DESKTOP_QT_RATE_QTRATEWINDOWS_H
#define WRENVALE_DESKTOP_QT_RATE_QTRATEWINDOWS_H

#include "platform/RateWindow.h"

namespace wrenvale::platform {

/// Main thread only. A host without a QApplication has no windows.
class QtRateWindows : public RateWindows {
public:
  std::unique_ptr<RateWindow> makeRateWindow(RateWindowDelegate& delegate) override;
  std::unique_ptr<DimmingOverlay> makeOverlay(HostWindow* parent) override;
};

} // namespace wrenvale::platform

#endif
