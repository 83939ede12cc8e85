// An alert as a QMessageBox.

#ifndef WRENVALE_DESKTOP_QT_ALERTS_ALERTBOX_H
#define WRENVALE_DESKTOP_QT_ALERTS_ALERTBOX_H

#include <QMessageBox>

#include "platform/Alert.h"

namespace wrenvale::platform {

/// Has the alert's texts and buttons, and keeps to the screen however long the texts are: of both
/// together the first 1,000 characters are shown. Main thread only; there is a QApplication.
class AlertBox final : public QMessageBox {
public:
  explicit AlertBox(const Alert& alert);

  /// How the alert was answered, once it is closed.
  int answer() const;
  /// The answer of one that is closed without a button.
  static int closedAnswer(const Alert& alert);

protected:
  void showEvent(QShowEvent* event) override;

private:
  void addTexts(const Alert& alert);
  void addButtons(const Alert& alert);
  void removeEmptyIndent();

  const int closedAnswer_;
  QPushButton* const default_;
  QPushButton* other_ = nullptr;
  QPushButton* alternate_ = nullptr;
};

} // namespace wrenvale::platform

#endif
