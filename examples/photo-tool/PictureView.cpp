#include "PictureView.h"

#include <algorithm>

#include <QLabel>
#include <QPixmap>

namespace {

constexpr double kStep = 1.25;
constexpr double kSmallest = 0.05;
constexpr double kLargest = 8;
constexpr int kMargin = 24; // around a fitted picture

} // namespace

PictureView::PictureView(QWidget* parent)
    : QScrollArea(parent)
    , label_(new QLabel) {
  setWidget(label_);
  setAlignment(Qt::AlignCenter);
  setFrameShape(QFrame::NoFrame);
  QPalette dark = palette();
  dark.setColor(QPalette::Window, QColor(38, 40, 44));
  setPalette(dark);
}

void PictureView::setPicture(const QImage& picture) {
  picture_ = picture;
  fitted_ = true;
  redraw();
}

void PictureView::zoomIn() {
  setScale(scale_ * kStep);
}

void PictureView::zoomOut() {
  setScale(scale_ / kStep);
}

void PictureView::actualSize() {
  setScale(1);
}

void PictureView::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  if (fitted_) redraw();
}

double PictureView::fittingScale() const {
  const QSizeF room = maximumViewportSize() - QSize(2 * kMargin, 2 * kMargin);
  if (picture_.isNull() || room.isEmpty()) return 1;
  return std::min({room.width() / picture_.width(), room.height() / picture_.height(), 1.0});
}

void PictureView::setScale(double scale) {
  scale_ = std::clamp(scale, kSmallest, kLargest);
  fitted_ = false;
  redraw();
}

void PictureView::redraw() {
  if (fitted_) scale_ = fittingScale();
  const QSize size = (QSizeF(picture_.size()) * scale_).toSize();
  label_->setPixmap(
      QPixmap::fromImage(picture_.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)));
  label_->resize(size);
}
