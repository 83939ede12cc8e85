// An alert as a QMessageBox.

#ifndef WRENVALE_PLATFORM_QT_ALERTBOX_H
#define WRENVALE_PLATFORM_QT_ALERTBOX_H

#include <QMessageBox>

#include "platform/Alerts.h"

namespace wrenvale::platform {

/// Has the alert's texts and buttons. Main thread only; there is a QApplication.
class AlertBox final : public QMessageBox {
public:
  explicit AlertBox(const Alert& alert);

  /// How the alert was answered, once it is closed.
  int answer() const;
  /// The answer of one that is closed without a button.
  static int closedAnswer(const Alert& alert);

private:
  const int closedAnswer_;
  QPushButton* const default_;
  QPushButton* other_ = nullptr;
  QPushButton* alternate_ = nullptr;
};

} // namespace wrenvale::platform

#endif
