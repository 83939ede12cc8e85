// Recommender windows of a build without a web view: there are none.

#ifndef WRENVALE_PLATFORM_QT_NORECOMMENDERWINDOWS_H
#define WRENVALE_PLATFORM_QT_NORECOMMENDERWINDOWS_H

#include "platform/RecommenderWindow.h"

namespace wrenvale::platform {

class NoRecommenderWindows final : public RecommenderWindows {
public:
  std::unique_ptr<RecommenderWindow> makeRecommenderWindow(RecommenderWindowDelegate&) override {
    return nullptr;
  }
};

} // namespace wrenvale::platform

#endif
