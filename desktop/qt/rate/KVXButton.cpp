#include "desktop/qt/rate/KVXButton.h"

#include <QKeyEvent>
#include <QPainter>

namespace wrenvale::platform {

namespace {

// The focus ring lies outside of the surface, within the widget.
constexpr int kRingSpace = 4;
constexpr qreal kRingWidth = 2;
constexpr qreal kRadius = 10;
constexpr int kPaddingAcross = 22;
constexpr int kPaddingAlong = 11;
constexpr int kFlatPadding = 4;
constexpr QRgb kAccent = 0xff2459d8;

enum State { kNormal, kHover, kPressed, kDisabled };

struct Look {
  QRgb surface[4]; // by State
  QRgb text[4];
};

constexpr Look kPlain{{0xffeef1f6, 0xffe2e7ef, 0xffd3dae6, 0xfff3f5f8},
                      {0xff1c2333, 0xff1c2333, 0xff1c2333, 0xff656c79}};
constexpr Look kDefault{{kAccent, 0xff1d4bbd, 0xff173d9c, 0xffdfe6f5},
                        {0xffffffff, 0xffffffff, 0xffffffff, 0xff5a6377}};
constexpr Look kFlat{{0x00ffffff, 0xffeef1f6, 0xffdfe4ec, 0x00ffffff},
                     {0xff565e6d, 0xff1c2333, 0xff1c2333, 0xff656c79}};

const Look& lookOf(const QPushButton& button) {
  if (button.isFlat()) return kFlat;
  return button.isDefault() ? kDefault : kPlain;
}

State stateOf(const QPushButton& button) {
  if (!button.isEnabled()) return kDisabled;
  if (button.isDown()) return kPressed;
  return button.underMouse() && button.isActiveWindow() ? kHover : kNormal;
}

} // namespace

KVXButton::KVXButton(QWidget* parent)
    : QPushButton(parent) {
  setAttribute(Qt::WA_Hover);
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::TabFocus);
  setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

QSize KVXButton::sizeHint() const {
  ensurePolished();
  const QSize text = fontMetrics().size(Qt::TextShowMnemonic, this->text());
  const int height = text.height() + 2 * (isFlat() ? kFlatPadding : kPaddingAlong);
  const int width = isFlat() ? height : text.width() + 2 * kPaddingAcross;
  return QSize(width, height) + QSize(2 * kRingSpace, 2 * kRingSpace);
}

void KVXButton::paintEvent(QPaintEvent*) {
  const Look& look = lookOf(*this);
  const State state = stateOf(*this);
  const QRectF surface = QRectF(rect()).adjusted(kRingSpace, kRingSpace, -kRingSpace, -kRingSpace);
  const qreal radius = isFlat() ? surface.height() / 2 : kRadius;

  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor::fromRgba(look.surface[state]));
  painter.drawRoundedRect(surface, radius, radius);
  if (hasFocus()) {
    const qreal gap = kRingSpace - kRingWidth / 2;
    painter.setPen(QPen(QColor(kAccent), kRingWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(surface.adjusted(-gap, -gap, gap, gap), radius + gap, radius + gap);
  }
  painter.setPen(QColor(look.text[state]));
  painter.drawText(surface, Qt::AlignCenter | Qt::TextShowMnemonic, text());
}

void KVXButton::changeEvent(QEvent* event) {
  QPushButton::changeEvent(event);
  if (event->type() == QEvent::ActivationChange) update();
}

void KVXButton::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (event->isAutoRepeat() && (enter || event->key() == Qt::Key_Space)) return;
  if (enter)
    click();
  else
    QPushButton::keyPressEvent(event);
}

void KVXButton::mouseDoubleClickEvent(QMouseEvent* event) {
  event->accept();
}

} // namespace wrenvale::platform
