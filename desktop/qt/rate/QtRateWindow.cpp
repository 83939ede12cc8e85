#include "desktop/qt/rate/QtRateWindow.h"

#include <QApplication>
#include <QEventLoop>
#include <QPointer>
#include <QWindow>

#include "desktop/qt/app/ParentWatch.h"
#include "desktop/qt/app/Toolkit.h"
#include "desktop/qt/rate/FaceView.h"

namespace wrenvale::platform {

QtRateWindow::QtRateWindow(RateWindowDelegate& delegate, std::string_view appName)
    : delegate_(&delegate)
    , widget_(new RateWindowWidget(events(), fromUTF8(appName))) {
  connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { requestClose(); });
}

QtRateWindow::~QtRateWindow() {
  delegate_ = nullptr;
  close();
  if (widget_) deleteWindowLater(*widget_);
}

// The widget outlives the window by a turn of the event loop.
RateWindowWidget::Events QtRateWindow::events() {
  const QPointer self(this);
  return {
      .pressed =
          [self](RateButton button) {
            if (self && self->open_ && self->delegate_) self->delegate_->buttonAction(button);
          },
      .hovered =
          [self](RateButton button, bool inside) {
            if (self) self->report(button, inside);
          },
      .mayClose = [self] { return !self || self->askToClose(); },
      .hidden =
          [self] {
            if (self) self->checkLater();
          },
      .destroyed =
          [self] {
            if (!self) return;
            self->widget_ = nullptr;
            self->checkLater();
          },
  };
}

void QtRateWindow::report(RateButton button, bool inside) {
  if (open_ && delegate_) delegate_->hovered(button, inside);
}

bool QtRateWindow::askToClose() {
  if (!open_ || asking_) return true;
  const QPointer self(this);
  asking_ = true;
  const bool agreed = !delegate_ || delegate_->windowShouldClose();
  if (!self) return true;
  asking_ = false;
  if (agreed) markClosed();
  return agreed;
}

void QtRateWindow::requestClose() {
  const QPointer self(this);
  if (askToClose() && self && !asking_) close();
}

void QtRateWindow::markClosed() {
  open_ = false;
  if (loop_) loop_->quit();
}

void QtRateWindow::close() {
  markClosed();
  if (widget_) widget_->close();
}

// A window that was hidden or destroyed without being closed leaves nothing that the user could
// close.
void QtRateWindow::checkLater() {
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (open_ && (!widget_ || !widget_->isVisible())) requestClose();
      },
      Qt::QueuedConnection);
}

void QtRateWindow::showImage(std::string_view name) {
  if (widget_) widget_->imageView().showFace(name);
}

void QtRateWindow::setView(RateView view, bool pushed) {
  if (widget_) widget_->setView(view, pushed);
}

void QtRateWindow::makeKeyAndOrderFront() {
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

void QtRateWindow::attachToParent(HostWindow* parent) {
  if (!parent || !widget_) return;
  QWidget& window = *parent->window();
  widget_->follow(window);
  widget_->setWindowModality(Qt::ApplicationModal);
  widget_->winId(); // from now on there is a QWindow
  widget_->windowHandle()->setTransientParent(window.windowHandle());
  connect(&window, &QObject::destroyed, widget_, [widget = widget_] { widget->followNothing(); });
  new ParentWatch(
      window, this,
      [this] {
        if (widget_) widget_->place();
      },
      [this] { requestClose(); });
}

void QtRateWindow::runModal() {
  if (!open_ || loop_) return;
  const QPointer self(this);
  QEventLoop loop;
  loop_ = &loop;
  loop.exec(QEventLoop::DialogExec);
  if (!self) return;
  loop_ = nullptr;
  requestClose(); // the host left its event loops, and this one with them
}

} // namespace wrenvale::platform
