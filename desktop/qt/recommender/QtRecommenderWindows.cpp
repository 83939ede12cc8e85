#include "desktop/qt/recommender/QtRecommenderWindows.h"

#include "desktop/qt/app/Toolkit.h"
#include "desktop/qt/recommender/QtRecommenderWindow.h"

namespace wrenvale::platform {

std::unique_ptr<RecommenderWindow>
QtRecommenderWindows::makeRecommenderWindow(RecommenderWindowDelegate& delegate) {
  if (!hasWindows()) return nullptr;
  return std::make_unique<QtRecommenderWindow>(delegate, loader_);
}

} // namespace wrenvale::platform
