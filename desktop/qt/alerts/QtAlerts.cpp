#include "desktop/qt/alerts/QtAlerts.h"

#include <memory>

#include <QPointer>

#include "desktop/qt/alerts/AlertBox.h"
#include "desktop/qt/app/Toolkit.h"

namespace wrenvale::platform {

std::optional<int> QtAlerts::runModal(const Alert& alert, const std::function<void()>& willShow) {
  if (!hasWindows()) return std::nullopt;
  willShow();
  const QPointer<AlertBox> box = new AlertBox(alert);
  box->exec();
  if (!box) return AlertBox::closedAnswer(alert);
  const std::unique_ptr<AlertBox> owned(box);
  return box->answer();
}

} // namespace wrenvale::platform
