// Message boxes, as Qt's QMessageBox.

#ifndef WRENVALE_DESKTOP_QT_ALERTS_QTALERTS_H
#define WRENVALE_DESKTOP_QT_ALERTS_QTALERTS_H

#include "platform/Alerts.h"

namespace wrenvale::platform {

/// The host may find the box among its top-level widgets, close it and even destroy it: all of that
/// counts as closing it without a button.
class QtAlerts : public Alerts {
public:
  std::optional<int> runModal(const Alert& alert, const std::function<void()>& willShow) override;
};

} // namespace wrenvale::platform

#endif
