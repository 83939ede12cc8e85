#include "desktop/qt/rate/FaceView.h"

#include <QPainter>

#include "desktop/qt/app/Toolkit.h"

namespace wrenvale::platform {

void FaceView::setFace(const std::optional<FaceDrawing>& face) {
  face_ = face;
  setAccessibleName(face ? translated(face->title.toUtf8().constData()) : QString());
  update();
}

void FaceView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (face_) face_->paint(painter, rect());
}

} // namespace wrenvale::platform
