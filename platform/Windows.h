// The framework's windows and message boxes, as they are made.

#ifndef WRENVALE_PLATFORM_WINDOWS_H
#define WRENVALE_PLATFORM_WINDOWS_H

#include <functional>
#include <memory>
#include <optional>
#include <string_view>

#include "platform/Alert.h"
#include "platform/RateWindow.h"
#include "platform/RecommenderWindow.h"

namespace wrenvale::platform {

/// Main thread only. In a process without windows nothing is made or shown.
class Windows {
public:
  virtual ~Windows() = default;

  /// From the layout "Rate Window", whose texts have the host's name. Null in a process without
  /// windows.
  virtual std::unique_ptr<RateWindow> makeRateWindow(RateWindowDelegate& delegate,
                                                     std::string_view appName) = 0;

  /// Over the content of `parent`; shown nowhere when it is null.
  virtual std::unique_ptr<DimmingOverlay> makeOverlay(HostWindow* parent) = 0;

  /// From the layout "Recommender". Null in a process without windows.
  virtual std::unique_ptr<RecommenderWindow>
  makeRecommenderWindow(RecommenderWindowDelegate& delegate) = 0;

  /// Calls `willShow`, shows the alert on its own and returns its answer. When the application
  /// quits meanwhile, the answer is as if the alert had been closed. Nothing, and `willShow` not
  /// called, in a process without windows.
  virtual std::optional<int> runModal(const Alert& alert,
                                      const std::function<void()>& willShow) = 0;
};

} // namespace wrenvale::platform

#endif
