// The rate window, as Qt widgets.

#ifndef WRENVALE_DESKTOP_QT_RATE_QTRATEWINDOW_H
#define WRENVALE_DESKTOP_QT_RATE_QTRATEWINDOW_H

#include "platform/RateWindow.h"

namespace wrenvale::platform {

/// A top-level widget of its own, never a child of the host's: neither a parent that is deleted nor
/// one with a style sheet takes it along. Above a parent it is modal to the whole application, has
/// no frame to be moved by, and follows the parent's moves.
///
/// A close request of any origin asks the delegate once: the close button, Esc, the window system,
/// a parent that is hidden, closed or deleted, a host that quits, hides the window or leaves its
/// event loop. While the delegate answers, the window counts as closing and it is not asked again.
class QtRateWindow : public RateWindow {
public:
  /// There is a QApplication. The delegate outlives the window.
  explicit QtRateWindow(RateWindowDelegate& delegate);
  ~QtRateWindow() override;

  void loadImage(std::int64_t mood, std::string_view name) override;
  void showImage(std::int64_t mood) override;
  void addTrackingArea(RateButton button, std::int64_t mode) override;
  void setAppName(std::string_view appName) override;
  void setView(RateView view, bool pushed) override;

  void attachToParent(HostWindow* parent) override;
  void makeKeyAndOrderFront() override;
  void close() override;

  void runModal() override;
  void abortModal() override;

private:
  class Session;

  // Shared with the widget and with what is on the stack, any of which may outlive the window.
  const std::shared_ptr<Session> session_;
};

} // namespace wrenvale::platform

#endif
