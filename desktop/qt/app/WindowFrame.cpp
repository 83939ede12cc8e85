#include "desktop/qt/app/WindowFrame.h"

#include <algorithm>

#include <QGuiApplication>
#include <QScreen>

#include "desktop/qt/app/Toolkit.h"

namespace wrenvale::platform {

namespace {

// NaN counts as below the minimum.
double bounded(double value, double least, double most) {
  if (!(value > least)) return least;
  return value < most ? value : qMax(least, most);
}

struct Stretch {
  double begin, length;
};

Stretch fitted(double begin, double length, int smallest, int screenBegin, int screenLength) {
  const double centre = begin + length / 2;
  const double fits = bounded(length, smallest, screenLength);
  return {.begin = bounded(centre - fits / 2, screenBegin, screenBegin + screenLength - fits),
          .length = fits};
}

QRect rounded(const Frame& frame) {
  return {qRound(frame.x), qRound(frame.y), qRound(frame.width), qRound(frame.height)};
}

} // namespace

Frame frameOnScreen(const Frame& wanted, QSize smallest, const QRect& screen) {
  const auto across = fitted(wanted.x, wanted.width, smallest.width(), screen.x(), screen.width());
  const auto down = fitted(wanted.y, wanted.height, smallest.height(), screen.y(), screen.height());
  return {.x = across.begin, .y = down.begin, .width = across.length, .height = down.length};
}

QPoint placeOnScreen(const QRect& frame) {
  const auto* screen = QGuiApplication::screenAt(frame.center());
  if (!screen) screen = QGuiApplication::primaryScreen();
  const QRect available = screen->availableGeometry();
  const QSize room = (available.size() - frame.size()).expandedTo({0, 0});
  return {std::clamp(frame.x(), available.x(), available.x() + room.width()),
          std::clamp(frame.y(), available.y(), available.y() + room.height())};
}

WindowFrame::WindowFrame(QWidget& window)
    : window_(window) {
  animation_.setEasingCurve(QEasingCurve::InOutQuad);
  QObject::connect(&animation_, &QVariantAnimation::valueChanged, &window,
                   [this](const QVariant& frame) { apply(frame.toRect()); });
}

bool WindowFrame::isMoving() const {
  return animation_.state() == QAbstractAnimation::Running;
}

// Not while the window moves: without a window manager Qt then computes the decoration from an old
// and a new size.
QSize WindowFrame::decoration() const {
  return isMoving() ? decoration_ : window_.frameGeometry().size() - window_.size();
}

QRect WindowFrame::target() const {
  return isMoving() ? animation_.endValue().toRect() : window_.frameGeometry();
}

// Windows stand at whole pixels, but a centre may fall between two. A window that has not moved
// since setFrame() returns the exact frame that was set: else it would wander when it is resized
// around its centre again and again.
Frame WindowFrame::frame() const {
  const QRect frame = target();
  if (frame == rounded(set_)) return set_;
  return {.x = double(frame.x()),
          .y = double(frame.y()),
          .width = double(frame.width()),
          .height = double(frame.height())};
}

Frame WindowFrame::frameForContentSize(double width, double height) const {
  const QSize around = decoration();
  return {.x = 0, .y = 0, .width = width + around.width(), .height = height + around.height()};
}

void WindowFrame::setFrame(const Frame& frame, bool animate) {
  decoration_ = decoration();
  set_ = frameOnScreen(frame, window_.minimumSize() + decoration_,
                       window_.screen()->availableGeometry());
  const QRect end = rounded(set_);
  animation_.stop();
  if (!animate || animationDuration() == 0) return apply(end);
  animation_.setDuration(animationDuration());
  animation_.setStartValue(window_.frameGeometry());
  animation_.setEndValue(end);
  animation_.start();
}

void WindowFrame::centre() {
  decoration_ = decoration();
  QRect frame = target();
  frame.moveCenter(window_.screen()->availableGeometry().center());
  apply(frame);
}

void WindowFrame::apply(const QRect& frame) {
  window_.resize(frame.size() - decoration_);
  window_.move(frame.topLeft());
}

} // namespace wrenvale::platform
