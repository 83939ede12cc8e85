#include "desktop/qt/rate/PushTransition.h"

#include <QStackedWidget>

#include "desktop/qt/app/Toolkit.h"

namespace wrenvale::platform {

PushTransition::PushTransition(QStackedWidget& container)
    : QVariantAnimation(&container)
    , container_(container) {
  setStartValue(0.0);
  setEndValue(1.0);
  setEasingCurve(QEasingCurve::InOutCubic);
  connect(this, &QVariantAnimation::valueChanged, this,
          [this](const QVariant& value) { place(value.toDouble()); });
  connect(this, &QAbstractAnimation::finished, this, [this] { finish(); });
}

void PushTransition::push(QWidget& view) {
  if (isUnderWay()) {
    stop();
    finish();
  }
  leaving_ = container_.currentWidget();
  container_.setCurrentWidget(&view);
  setDuration(animationDuration());
  if (duration() > 0 && leaving_ != &view) {
    leaving_->show();
    place(0); // the first value is not reported
  }
  start();
}

void PushTransition::place(qreal progress) {
  QWidget* entering = container_.currentWidget();
  if (!leaving_ || leaving_ == entering) return;
  const int width = container_.width();
  const int way = container_.layoutDirection() == Qt::RightToLeft ? -width : width;
  const int covered = qRound(way * progress);
  entering->move(way - covered, 0);
  leaving_->move(-covered, 0);
}

void PushTransition::finish() {
  QWidget* entering = container_.currentWidget();
  entering->move(0, 0);
  if (leaving_ && leaving_ != entering) leaving_->hide();
  leaving_ = nullptr;
}

} // namespace wrenvale::platform
