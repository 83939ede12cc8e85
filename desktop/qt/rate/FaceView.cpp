#include "desktop/qt/rate/FaceView.h"

#include <QPainter>

#include "desktop/qt/app/Toolkit.h"

namespace wrenvale::platform {

void FaceView::setFace(const std::optional<Face>& face) {
  face_ = face;
  setAccessibleName(face ? translated(face->title.toUtf8().constData()) : QString());
  update();
}

void FaceView::paintEvent(QPaintEvent*) {
  if (!face_) return;
  QPainter painter(this);
  const qreal scale = painter.deviceTransform().m11();
  auto picture = face_->picture.scaled((QSizeF(size()) * scale).toSize(), Qt::KeepAspectRatio,
                                       Qt::SmoothTransformation);
  picture.setDevicePixelRatio(scale);
  painter.drawPixmap(QPointF(0, 0), picture);
}

} // namespace wrenvale::platform
