// The framework's alerts as message boxes: on their own, or as sheets of a window.

#ifndef WRENVALE_DESKTOP_QT_ALERTS_ALERTBOX_H
#define WRENVALE_DESKTOP_QT_ALERTS_ALERTBOX_H

#include <functional>

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

/// Shows `alert` modal to `window` and returns; the caller keeps owning both. `ended` is called
/// once on the main thread, with the result that QMessageBox::finished() tells; with 0 when the
/// alert goes unanswered: destroyed, or taken along by a window that is hidden, closed or deleted
/// or by a host that quits. Without a window the alert is modal to the whole application. What
/// `ended` throws is dropped. Main thread only.
void beginSheet(QMessageBox& alert, QWidget* window, std::function<void(int)> ended);

} // namespace wrenvale::platform

#endif
