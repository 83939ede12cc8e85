// Makes the recommender window, as a Qt widget.

#ifndef WRENVALE_PLATFORM_QT_QTRECOMMENDERWINDOWS_H
#define WRENVALE_PLATFORM_QT_QTRECOMMENDERWINDOWS_H

#include <string>

#include "platform/RecommenderWindow.h"
#include "platform/qt/WebViewModuleLoader.h"

namespace wrenvale::platform {

/// Main thread only. A host without a QApplication has no windows.
class QtRecommenderWindows : public RecommenderWindows {
public:
  /// `module`: where the web view's module is, which one of `threads` is to load.
  QtRecommenderWindows(std::string module, BackgroundThreads& threads)
      : loader_(std::move(module), threads) {}

  /// Outlived by this object.
  std::unique_ptr<RecommenderWindow>
  makeRecommenderWindow(RecommenderWindowDelegate& delegate) override;

private:
  WebViewModuleLoader loader_;
};

} // namespace wrenvale::platform

#endif
