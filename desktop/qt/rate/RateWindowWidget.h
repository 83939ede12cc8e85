// The rate window's widgets: the layout "Rate Window" and how it behaves on its own.

#ifndef WRENVALE_DESKTOP_QT_RATE_RATEWINDOWWIDGET_H
#define WRENVALE_DESKTOP_QT_RATE_RATEWINDOWWIDGET_H

#include <functional>
#include <memory>

#include <QWidget>

#include "platform/RateWindow.h"

class QPushButton;

namespace Ui {
class RateWindow;
}

namespace wrenvale::platform {

class FaceView;
class PushTransition;

/// White with dark text whatever the host's palette and style sheet, as large as its texts need,
/// which grow with the host's font, and of no influence on when the host quits. It begins without a
/// focused button, so that a key meant for another window answers nothing.
///
/// Main thread only. Destroy it with deleteWindowLater(): the events it reports come from within
/// its own.
class RateWindowWidget final : public QWidget {
public:
  struct Events {
    std::function<void(RateButton)> pressed;
    std::function<void(RateButton, bool inside)> hovered;
    std::function<bool()> mayClose;
    std::function<void()> hidden;
    std::function<void()> destroyed; ///< the widget is no longer to be used
  };

  /// Reports presses and hovering of buttons in the present view only; hovering only while the
  /// window is active, and no presses while the view is being pushed in.
  RateWindowWidget(Events events, const QString& appName);
  ~RateWindowWidget() override;

  FaceView& imageView();
  void setView(RateView view, bool pushed);

  /// Gives up the window frame, by which a user could move the window, for a close button of its
  /// own, and keeps the window centred on `parent`, which outlives it or is given up first with
  /// followNothing().
  void follow(QWidget& parent);
  void followNothing() { parent_ = nullptr; }
  /// Puts the window where it belongs: the middle of its parent, as far as the screen lets it, or
  /// of its screen.
  void place();

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

private:
  void connectButton(QPushButton& button, RateButton name);
  bool isInPresentView(const QWidget& widget) const;
  void reportHovering();
  void fillInTexts();
  void setFontSizes();
  void remeasure();
  void fit();
  QPoint placeOf() const;
  void returnToPlace();

  const Events events_;
  const QString appName_;
  const std::unique_ptr<Ui::RateWindow> ui_;
  PushTransition* const push_;
  QWidget* view_ = nullptr; ///< the present one; the container shows it only in a while
  const QWidget* underPointer_ = nullptr; ///< one of the buttons
  const QWidget* hovered_ = nullptr;      ///< the one last reported
  QString ownRules_;                      ///< of the layout's style sheet, without the font sizes
  QWidget* parent_ = nullptr;
  int returnsLeft_ = 0;
};

} // namespace wrenvale::platform

#endif
