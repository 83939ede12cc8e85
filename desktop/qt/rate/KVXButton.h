// The button of the framework's windows.

#ifndef WRENVALE_DESKTOP_QT_RATE_KVXBUTTON_H
#define WRENVALE_DESKTOP_QT_RATE_KVXBUTTON_H

#include <QPushButton>

namespace wrenvale::platform {

/// Shows the pointing hand over the whole of it, and looks the same in every style, palette and
/// style sheet of a host. Layouts say what it is with Qt's own properties: `default` is the one in
/// the accent colour, `flat` one without a surface of its own.
/// It shows that the pointer is over it in the active window only.
///
/// Return presses it as Space does. What is meant for the button before it does not press it: a key
/// held down, or the second click of a double click.
class KVXButton : public QPushButton {
public:
  explicit KVXButton(QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

protected:
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
};

} // namespace wrenvale::platform

#endif
