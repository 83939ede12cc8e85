#include "desktop/qt/rate/FaceView.h"

#include <QCoreApplication>
#include <QPainter>

#include "desktop/qt/app/Toolkit.h"

extern "C" {
extern const unsigned char wrenvale_smile_0[];
extern const unsigned char wrenvale_smile_1[];
extern const unsigned char wrenvale_smile_2[];
extern const unsigned long wrenvale_smile_0_size;
extern const unsigned long wrenvale_smile_1_size;
extern const unsigned long wrenvale_smile_2_size;
}

namespace wrenvale::platform {

namespace {

constexpr const char* kTitles[] = {QT_TRANSLATE_NOOP("Wrenvale", "Neutral face"),
                                   QT_TRANSLATE_NOOP("Wrenvale", "Unhappy face"),
                                   QT_TRANSLATE_NOOP("Wrenvale", "Happy face")};

// The pictures have four times the size in which they are shown. They are made from the drawings
// beside them: `rsvg-convert --width 528 smile-0.svg | pngquant --strip 256 - >smile-0.png`.
const struct {
  std::string_view name;
  const unsigned char* png;
  const unsigned long& size;
  const char* title;
} kFaces[] = {
    {"smile-0", wrenvale_smile_0, wrenvale_smile_0_size, kTitles[0]},
    {"smile-1", wrenvale_smile_1, wrenvale_smile_1_size, kTitles[1]},
    {"smile-2", wrenvale_smile_2, wrenvale_smile_2_size, kTitles[2]},
};

} // namespace

void FaceView::showFace(std::string_view name) {
  picture_ = QPixmap();
  setAccessibleName({});
  for (const auto& face : kFaces) {
    if (face.name != name) continue;
    picture_.loadFromData(face.png, static_cast<unsigned>(face.size), "PNG");
    setAccessibleName(translated(face.title));
  }
  update();
}

void FaceView::paintEvent(QPaintEvent*) {
  if (picture_.isNull()) return;
  QPainter painter(this);
  const qreal scale = painter.deviceTransform().m11();
  auto picture = picture_.scaled((QSizeF(size()) * scale).toSize(), Qt::KeepAspectRatio,
                                 Qt::SmoothTransformation);
  picture.setDevicePixelRatio(scale);
  painter.drawPixmap(QPointF(0, 0), picture);
}

} // namespace wrenvale::platform
