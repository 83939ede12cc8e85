#include "desktop/qt/rate/QtRateWindow.h"

#include <map>

#include <QApplication>
#include <QEventLoop>
#include <QWindow>

#include "desktop/qt/app/ParentWatch.h"
#include "desktop/qt/app/Toolkit.h"
#include "desktop/qt/rate/FaceView.h"
#include "desktop/qt/rate/RateWindowWidget.h"

namespace wrenvale::platform {

class QtRateWindow::Session : public std::enable_shared_from_this<Session> {
public:
  explicit Session(RateWindowDelegate& delegate)
      : delegate_(&delegate) {}

  void makeWidget();
  RateWindowWidget* widget() const { return widget_; }

  void show();
  /// Closes when the delegate agrees.
  void requestClose();
  /// Closes without asking.
  void close();
  /// Closes for good; the delegate is not called any more.
  void end();
  void attach(QWidget& parent);
  void runModal();
  void abortModal();

  std::map<std::int64_t, Face> images;
  std::map<RateButton, std::int64_t> trackingAreas;

private:
  bool askToClose();
  void markClosed();
  void report(RateButton button, bool inside);
  void checkLater();
  void check();

  RateWindowDelegate* delegate_;       // null once the window has ended
  RateWindowWidget* widget_ = nullptr; // until it is destroyed, by whomever
  QEventLoop* loop_ = nullptr;         // while runModal() waits in it
  bool open_ = false;
  bool asking_ = false;
  bool aborted_ = false;
};

void QtRateWindow::Session::makeWidget() {
  const auto self = shared_from_this();
  widget_ = new RateWindowWidget({
      .pressed =
          [self](RateButton button) {
            if (self->open_ && self->delegate_) self->delegate_->buttonAction(button);
          },
      .hovered = [self](RateButton button, bool inside) { self->report(button, inside); },
      .mayClose = [self] { return self->askToClose(); },
      .hidden = [self] { self->checkLater(); },
      .destroyed =
          [self] {
            self->widget_ = nullptr;
            self->checkLater();
          },
  });
  QObject::connect(qApp, &QCoreApplication::aboutToQuit, widget_, [self] { self->requestClose(); });
}

void QtRateWindow::Session::report(RateButton button, bool inside) {
  const auto area = trackingAreas.find(button);
  if (!open_ || !delegate_ || area == trackingAreas.end()) return;
  if (inside)
    delegate_->mouseEntered(area->second);
  else
    delegate_->mouseExited(area->second);
}

bool QtRateWindow::Session::askToClose() {
  if (!open_ || asking_) return true;
  asking_ = true;
  const bool agreed = !delegate_ || delegate_->windowShouldClose();
  asking_ = false;
  if (agreed) markClosed();
  return agreed;
}

void QtRateWindow::Session::markClosed() {
  open_ = false;
  if (loop_) loop_->quit();
}

void QtRateWindow::Session::requestClose() {
  if (askToClose() && !asking_) close();
}

void QtRateWindow::Session::close() {
  markClosed();
  if (widget_) widget_->close();
}

void QtRateWindow::Session::end() {
  delegate_ = nullptr;
  close();
  if (widget_) deleteWindowLater(*widget_);
}

// Whatever hid or destroyed the window without closing it left nothing that the user could close.
void QtRateWindow::Session::checkLater() {
  QMetaObject::invokeMethod(
      qApp, [self = shared_from_this()] { self->check(); }, Qt::QueuedConnection);
}

void QtRateWindow::Session::check() {
  if (open_ && (!widget_ || !widget_->isVisible())) requestClose();
}

void QtRateWindow::Session::show() {
  if (!widget_) return;
  if (!open_) widget_->place();
  open_ = true;
  if (widget_->isMinimized())
    widget_->showNormal();
  else
    widget_->show();
  widget_->raise();
  widget_->activateWindow();
}

void QtRateWindow::Session::attach(QWidget& parent) {
  if (!widget_) return;
  widget_->follow(parent);
  widget_->setWindowModality(Qt::ApplicationModal);
  widget_->winId(); // from now on there is a QWindow
  widget_->windowHandle()->setTransientParent(parent.windowHandle());
  QObject::connect(&parent, &QObject::destroyed, widget_, [this] { widget_->followNothing(); });
  new ParentWatch(
      parent, widget_, [this] { widget_->place(); }, [this] { requestClose(); });
}

void QtRateWindow::Session::runModal() {
  if (!open_ || aborted_ || loop_) return;
  QEventLoop loop;
  loop_ = &loop;
  loop.exec(QEventLoop::DialogExec);
  loop_ = nullptr;
  if (!aborted_) requestClose(); // the host left its event loops, and this one with them
}

void QtRateWindow::Session::abortModal() {
  aborted_ = true;
  if (loop_) loop_->quit();
}

QtRateWindow::QtRateWindow(RateWindowDelegate& delegate)
    : session_(std::make_shared<Session>(delegate)) {
  session_->makeWidget();
}

QtRateWindow::~QtRateWindow() {
  session_->end();
}

void QtRateWindow::loadImage(std::int64_t mood, std::string_view name) {
  if (auto face = faceNamed(name)) session_->images.insert_or_assign(mood, *std::move(face));
}

void QtRateWindow::showImage(std::int64_t mood) {
  if (!session_->widget()) return;
  const auto image = session_->images.find(mood);
  session_->widget()->imageView().setFace(
      image == session_->images.end() ? std::nullopt : std::optional(image->second));
}

void QtRateWindow::addTrackingArea(RateButton button, std::int64_t mode) {
  session_->trackingAreas.insert_or_assign(button, mode);
}

void QtRateWindow::setAppName(std::string_view appName) {
  if (session_->widget()) session_->widget()->setAppName(fromUTF8(appName));
}

void QtRateWindow::setView(RateView view, bool pushed) {
  if (session_->widget()) session_->widget()->setView(view, pushed);
}

void QtRateWindow::attachToParent(HostWindow* parent) {
  if (parent) session_->attach(*parent->window());
}

void QtRateWindow::makeKeyAndOrderFront() {
  session_->show();
}

void QtRateWindow::close() {
  session_->close();
}

void QtRateWindow::runModal() {
  const auto session = session_; // this may be gone when the loop ends
  session->runModal();
}

void QtRateWindow::abortModal() {
  session_->abortModal();
}

} // namespace wrenvale::platform
