#include "platform/qt/QtRecommenderWindows.h"

#include "platform/qt/QtRecommenderWindow.h"
#include "platform/qt/Toolkit.h"

namespace wrenvale::platform {

std::unique_ptr<RecommenderWindow>
QtRecommenderWindows::makeRecommenderWindow(RecommenderWindowDelegate& delegate) {
  if (!hasWindows()) return nullptr;
  return std::make_unique<QtRecommenderWindow>(delegate, loader_);
}

} // namespace wrenvale::platform
