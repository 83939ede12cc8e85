// Shows one picture, fitted to the window or enlarged.

#ifndef PHOTO_TOOL_PICTUREVIEW_H
#define PHOTO_TOOL_PICTUREVIEW_H

#include <QImage>
#include <QScrollArea>

class QLabel;

class PictureView : public QScrollArea {
public:
  explicit PictureView(QWidget* parent = nullptr);

  /// Shows the picture, fitted to the window until the first zoom.
  void setPicture(const QImage& picture);

  void zoomIn();
  void zoomOut();
  void actualSize();

protected:
  void resizeEvent(QResizeEvent* event) override;

private:
  double fittingScale() const;
  void setScale(double scale);
  void redraw();

  QImage picture_;
  QLabel* label_;
  double scale_ = 1;
  bool fitted_ = true;
};

#endif
