// Makes the recommender window, as a Qt widget.

#ifndef WRENVALE_DESKTOP_QT_RECOMMENDER_QTRECOMMENDERWINDOWS_H
#define WRENVALE_DESKTOP_QT_RECOMMENDER_QTRECOMMENDERWINDOWS_H

#include <string>

#include "desktop/qt/recommender/WebViewModuleLoader.h"
#include "platform/RecommenderWindow.h"

namespace wrenvale::platform {

/// Main thread only. A host without a QApplication has no windows.
class QtRecommenderWindows : public RecommenderWindows {
public:
  /// `module`: where the web view's module is.
  explicit QtRecommenderWindows(std::string module)
      : loader_(std::move(module)) {}

  /// Outlived by this object.
  std::unique_ptr<RecommenderWindow>
  makeRecommenderWindow(RecommenderWindowDelegate& delegate) override;

private:
  WebViewModuleLoader loader_;
};

} // namespace wrenvale::platform

#endif
