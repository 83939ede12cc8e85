#include "desktop/qt/rate/QtDimmingOverlay.h"

#include <utility>

#include <QEvent>
#include <QPainter>
#include <QWidget>

#include "desktop/qt/app/Toolkit.h"

namespace wrenvale::platform {

class QtDimmingOverlay::Layer final : public QWidget {
public:
  explicit Layer(QWidget* parent)
      : QWidget(parent) {
    setObjectName("dimmingOverlay");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(parent->rect());
    parent->installEventFilter(this);
    show();
    raise();
  }

  void setAlpha(double alpha) {
    alpha_ = alpha;
    update();
  }

protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Resize && watched == parentWidget())
      setGeometry(parentWidget()->rect());
    return false;
  }

  void paintEvent(QPaintEvent*) override {
    QPainter(this).fillRect(rect(), QColor::fromRgbF(0, 0, 0, static_cast<float>(alpha_)));
  }

private:
  double alpha_ = 0;
};

QtDimmingOverlay::QtDimmingOverlay(QWidget* parent) {
  if (parent) layer_ = new Layer(parent->window());
  QObject::connect(&animation_, &QVariantAnimation::valueChanged, &animation_,
                   [this](const QVariant& value) {
                     alpha_ = value.toDouble();
                     if (layer_) layer_->setAlpha(alpha_);
                   });
  QObject::connect(&animation_, &QAbstractAnimation::finished, &animation_, [this] { arrive(); });
}

QtDimmingOverlay::~QtDimmingOverlay() {
  delete layer_.data();
}

void QtDimmingOverlay::animateAlpha(double alpha, std::function<void()> completion) {
  animation_.stop();
  completion_ = std::move(completion);
  animation_.setStartValue(alpha_);
  animation_.setEndValue(alpha);
  animation_.setDuration(layer_ ? animationDuration() : 0);
  animation_.start();
}

// The completion may destroy the overlay.
void QtDimmingOverlay::arrive() {
  if (const auto completion = std::exchange(completion_, nullptr)) completion();
}

} // namespace wrenvale::platform
