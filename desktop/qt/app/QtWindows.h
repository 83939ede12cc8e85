// The framework's windows and message boxes, as Qt widgets.

#ifndef WRENVALE_DESKTOP_QT_APP_QTWINDOWS_H
#define WRENVALE_DESKTOP_QT_APP_QTWINDOWS_H

#include <string>

#include "desktop/qt/recommender/WebViewModuleLoader.h"
#include "platform/Windows.h"

namespace wrenvale::platform {

/// A host without a QApplication has no windows. A message box is one of its top-level widgets,
/// which it may find, close and even destroy: all of that counts as closing it without a button.
class QtWindows final : public Windows {
public:
  /// `webViewModule`: where the web view's module is; empty for a missing one.
  explicit QtWindows(std::string webViewModule)
      : loader_(std::move(webViewModule)) {}

  std::unique_ptr<RateWindow> makeRateWindow(RateWindowDelegate& delegate,
                                             std::string_view appName) override;
  std::unique_ptr<DimmingOverlay> makeOverlay(HostWindow* parent) override;
  /// Outlived by this object.
  std::unique_ptr<RecommenderWindow>
  makeRecommenderWindow(RecommenderWindowDelegate& delegate) override;
  std::optional<int> runModal(const Alert& alert, const std::function<void()>& willShow) override;

private:
  WebViewModuleLoader loader_;
};

} // namespace wrenvale::platform

#endif
