// The rate window: how it is shown above a parent, runs modally and closes.

#ifndef WRENVALE_DESKTOP_QT_RATE_QTRATEWINDOW_H
#define WRENVALE_DESKTOP_QT_RATE_QTRATEWINDOW_H

#include <QObject>

#include "desktop/qt/rate/RateWindowWidget.h"

class QEventLoop;

namespace wrenvale::platform {

/// A top-level widget of its own, never a child of the host's: neither a parent that is deleted nor
/// one with a style sheet takes it along. Above a parent it is modal to the whole application, has
/// no frame to be moved by, and follows the parent's moves.
///
/// A close request of any origin asks the delegate once: the close button, Esc, the window system,
/// a parent that is hidden, closed or deleted, a host that quits, hides the window or leaves its
/// event loop. While the delegate answers, the window counts as closing and it is not asked again.
class QtRateWindow final : public QObject, public RateWindow {
public:
  /// There is a QApplication. The delegate outlives the window.
  QtRateWindow(RateWindowDelegate& delegate, std::string_view appName);
  ~QtRateWindow() override;

  void showImage(std::string_view name) override;
  void setView(RateView view, bool pushed) override;

  void attachToParent(HostWindow* parent) override;
  void makeKeyAndOrderFront() override;
  void runModal() override;
  void close() override;

private:
  RateWindowWidget::Events events();
  void report(RateButton button, bool inside);
  bool askToClose();
  void requestClose();
  void markClosed();
  void checkLater();

  RateWindowDelegate* delegate_;       // null once the window is destroyed
  RateWindowWidget* widget_ = nullptr; // until it is destroyed, by whomever
  QEventLoop* loop_ = nullptr;         // while runModal() waits in it
  bool open_ = false;
  bool asking_ = false;
};

} // namespace wrenvale::platform

#endif
