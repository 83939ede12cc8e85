#include "desktop/qt/app/QtWindows.h"

#include <QPointer>

#include "desktop/qt/alerts/AlertBox.h"
#include "desktop/qt/app/Toolkit.h"
#include "desktop/qt/rate/QtDimmingOverlay.h"
#include "desktop/qt/rate/QtRateWindow.h"
#include "desktop/qt/recommender/QtRecommenderWindow.h"

namespace wrenvale::platform {

std::unique_ptr<RateWindow> QtWindows::makeRateWindow(RateWindowDelegate& delegate,
                                                      std::string_view appName) {
  if (!hasWindows()) return nullptr;
  return std::make_unique<QtRateWindow>(delegate, appName);
}

std::unique_ptr<DimmingOverlay> QtWindows::makeOverlay(HostWindow* parent) {
  return std::make_unique<QtDimmingOverlay>(hasWindows() ? parent : nullptr);
}

std::unique_ptr<RecommenderWindow>
QtWindows::makeRecommenderWindow(RecommenderWindowDelegate& delegate) {
  if (!hasWindows()) return nullptr;
  return std::make_unique<QtRecommenderWindow>(delegate, loader_);
}

std::optional<int> QtWindows::runModal(const Alert& alert, const std::function<void()>& willShow) {
  if (!hasWindows()) return std::nullopt;
  willShow();
  const QPointer<AlertBox> box = new AlertBox(alert);
  box->exec();
  if (!box) return AlertBox::closedAnswer(alert);
  const std::unique_ptr<AlertBox> owned(box);
  return box->answer();
}

} // namespace wrenvale::platform
