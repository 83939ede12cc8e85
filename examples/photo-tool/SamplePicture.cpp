#include "SamplePicture.h"

#include <cmath>

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

namespace {

constexpr double kShore = 0.66; // where the water begins, as a part of the height
constexpr QPointF kSun{0.64, 0.385};

struct Ridge {
  double height;    // its middle line above the shore, as a part of the picture's height
  double roughness; // how far it rises and falls
  double phase;
  QColor top;
  QColor foot;
};

void drawSky(QPainter& painter, QRectF area) {
  QLinearGradient sky(area.topLeft(), area.bottomLeft());
  sky.setColorAt(0.0, QColor(38, 56, 104));
  sky.setColorAt(0.45, QColor(126, 108, 158));
  sky.setColorAt(0.75, QColor(240, 160, 134));
  sky.setColorAt(1.0, QColor(255, 218, 164));
  painter.fillRect(area, sky);
}

void drawSun(QPainter& painter, QSizeF size) {
  const QPointF centre(kSun.x() * size.width(), kSun.y() * size.height());
  QRadialGradient glow(centre, size.width() * 0.3);
  glow.setColorAt(0.0, QColor(255, 244, 214, 220));
  glow.setColorAt(0.12, QColor(255, 220, 180, 120));
  glow.setColorAt(0.45, QColor(255, 176, 160, 40));
  glow.setColorAt(1.0, QColor(255, 160, 170, 0));
  painter.fillRect(QRectF({0, 0}, size), glow);
  painter.setBrush(QColor(255, 247, 226));
  painter.drawEllipse(centre, size.width() * 0.03, size.width() * 0.03);
}

// A few waves on top of each other: even enough for a ridge, uneven enough for a mountain.
double ridgeLine(const Ridge& ridge, double x) {
  const double p = ridge.phase;
  return std::sin(x * 5.1 + p) * 0.5 + std::sin(x * 11.7 + p * 2.3) * 0.28 +
         std::abs(std::sin(x * 23.0 + p * 3.1)) * 0.16 + std::sin(x * 61.0 + p * 5.0) * 0.035;
}

void drawRidge(QPainter& painter, QSizeF size, const Ridge& ridge) {
  const double shore = size.height() * kShore;
  QPainterPath path({0, shore});
  constexpr int steps = 400;
  for (int i = 0; i <= steps; ++i) {
    const double x = double(i) / steps;
    const double rise = ridge.height + ridge.roughness * ridgeLine(ridge, x);
    path.lineTo(x * size.width(), shore - std::max(rise, 0.004) * size.height());
  }
  path.lineTo(size.width(), shore);
  path.closeSubpath();
  QLinearGradient haze(path.boundingRect().topLeft(), path.boundingRect().bottomLeft());
  haze.setColorAt(0, ridge.top);
  haze.setColorAt(1, ridge.foot);
  painter.fillPath(path, haze);
}

void drawLand(QPainter& painter, QSizeF size) {
  const Ridge ridges[] = {
      {0.23, 0.10, 0.4, QColor(150, 122, 168), QColor(232, 170, 156)},
      {0.15, 0.10, 2.1, QColor(100, 92, 146), QColor(186, 136, 152)},
      {0.075, 0.09, 4.4, QColor(58, 64, 108), QColor(112, 94, 130)},
      {0.02, 0.05, 5.9, QColor(26, 34, 62), QColor(44, 46, 78)},
  };
  for (const auto& ridge : ridges)
    drawRidge(painter, size, ridge);
}

// The land upside down, darker towards the viewer.
void drawReflection(QPainter& painter, const QImage& picture, QRectF water) {
  const int height = int(water.height());
  const QImage above = picture.copy(0, int(water.top()) - height, picture.width(), height);
  painter.drawImage(water.topLeft(), above.mirrored());
  QLinearGradient depth(water.topLeft(), water.bottomLeft());
  depth.setColorAt(0.0, QColor(30, 36, 70, 40));
  depth.setColorAt(1.0, QColor(16, 22, 48, 210));
  painter.fillRect(water, depth);
}

// Short strokes of light below the sun, wider and further apart towards the viewer.
void drawGlitter(QPainter& painter, QRectF water) {
  constexpr int strokes = 60;
  for (int i = 0; i < strokes; ++i) {
    const double near = double(i) / strokes;
    const double y = water.top() + (0.12 + 0.88 * near * near) * water.height();
    const double reach = water.width() * (0.006 + 0.034 * near * std::abs(std::sin(i * 2.7)));
    const double x = water.width() * (kSun.x() + 0.02 * near * std::sin(i * 5.3));
    const double light = near < 0.3 ? near / 0.3 : 1.3 - near;
    painter.setPen(QPen(QColor(255, 222, 190, int(20 + 110 * light)), 1 + 2 * near, Qt::SolidLine,
                        Qt::RoundCap));
    painter.drawLine(QPointF(x - reach, y), QPointF(x + reach, y));
  }
}

} // namespace

QImage samplePicture(QSize size) {
  QImage picture(size, QImage::Format_RGB32);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const QSizeF whole(size);
  const double shore = std::floor(whole.height() * kShore);
  const QRectF water(0, shore, whole.width(), whole.height() - shore);
  drawSky(painter, QRectF(0, 0, whole.width(), shore));
  drawSun(painter, whole);
  drawLand(painter, whole);
  drawReflection(painter, picture.copy(), water);
  drawGlitter(painter, water);
  return picture;
}

QIcon applicationIcon() {
  constexpr int side = 256;
  QPixmap icon(side, side);
  icon.fill(Qt::transparent);
  QPainter painter(&icon);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QBrush(samplePicture(icon.size())));
  painter.drawRoundedRect(icon.rect().adjusted(8, 8, -8, -8), side * 0.2, side * 0.2);
  return icon;
}
