#include "platform/qt/QtAlerts.h"

#include <memory>

#include <QPointer>

#include "platform/qt/AlertBox.h"
#include "platform/qt/Toolkit.h"

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
