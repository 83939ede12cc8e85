// Shows one face, or none.

#ifndef WRENVALE_DESKTOP_QT_RATE_FACEVIEW_H
#define WRENVALE_DESKTOP_QT_RATE_FACEVIEW_H

#include <optional>

#include <QWidget>

#include "desktop/qt/rate/Face.h"

namespace wrenvale::platform {

/// Drawn at the resolution of the screen it is on, whatever its scale. Its accessible name says
/// what the face shows.
class FaceView : public QWidget {
public:
  using QWidget::QWidget;

  void setFace(const std::optional<Face>& face);
  QSize sizeHint() const override { return {132, 132}; }

protected:
  void paintEvent(QPaintEvent* event) override;

private:
  std::optional<Face> face_;
};

} // namespace wrenvale::platform

#endif
