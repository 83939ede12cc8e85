// Shows one of the rate window's faces, or none.

#ifndef WRENVALE_DESKTOP_QT_RATE_FACEVIEW_H
#define WRENVALE_DESKTOP_QT_RATE_FACEVIEW_H

#include <string_view>

#include <QPixmap>
#include <QWidget>

namespace wrenvale::platform {

/// Drawn at the resolution of the screen it is on, whatever its scale. Its accessible name says
/// what the face shows.
class FaceView : public QWidget {
public:
  using QWidget::QWidget;

  /// Shows the framework's image resource of this name ("smile-0"); none when there is no such one.
  void showFace(std::string_view name);
  QSize sizeHint() const override { return {132, 132}; }

protected:
  void paintEvent(QPaintEvent* event) override;

private:
  QPixmap picture_; // null for none
};

} // namespace wrenvale::platform

#endif
