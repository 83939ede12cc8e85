#include "desktop/qt/recommender/ProgressIndicator.h"

#include <QPainter>

#include "desktop/qt/app/Toolkit.h"

namespace wrenvale::platform {

namespace {

constexpr int kSpokes = 12;
constexpr int kInterval = 80; // milliseconds from one spoke to the next
constexpr int kSpokeColor = 0x56;
constexpr int kFaintest = 45; // of 255

} // namespace

ProgressIndicator::ProgressIndicator(QWidget* parent)
    : QWidget(parent) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ProgressIndicator::showEvent(QShowEvent*) {
  if (animationDuration() > 0) timer_.start(kInterval, this);
}

void ProgressIndicator::hideEvent(QHideEvent*) {
  timer_.stop();
}

void ProgressIndicator::timerEvent(QTimerEvent*) {
  step_ = (step_ + 1) % kSpokes;
  update();
}

// The spokes fade behind the one in front.
void ProgressIndicator::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(width() / 2.0, height() / 2.0);
  const double radius = qMin(width(), height()) / 2.0;
  painter.rotate(360.0 / kSpokes * step_);
  for (int behind = 0; behind < kSpokes; ++behind) {
    const int alpha = 255 - (255 - kFaintest) * behind / (kSpokes - 1);
    painter.setPen(QPen(QColor(kSpokeColor, kSpokeColor, kSpokeColor, alpha), radius * 0.17,
                        Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(0, -radius * 0.52), QPointF(0, -radius * 0.88));
    painter.rotate(-360.0 / kSpokes);
  }
}

} // namespace wrenvale::platform
