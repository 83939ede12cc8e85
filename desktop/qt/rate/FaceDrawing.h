// The pictures of the rate window: small vector drawings in a subset of SVG.

#ifndef WRENVALE_DESKTOP_QT_RATE_FACEDRAWING_H
#define WRENVALE_DESKTOP_QT_RATE_FACEDRAWING_H

#include <optional>
#include <string_view>
#include <vector>

#include <QBrush>
#include <QByteArray>
#include <QPainterPath>
#include <QPen>
#include <QRectF>
#include <QString>

class QPainter;

namespace wrenvale::platform {

/// A drawing as lists of shapes: as sharp at every scale, and read without an SVG library. What is
/// understood of SVG:
///   * `svg` with `viewBox`; `title`; `g` as mere grouping;
///   * `circle`, `ellipse`, and `path` with the absolute commands M, L, Q, C and Z;
///   * `fill`, `fill-opacity`, `stroke` and `stroke-width` on the shape itself; strokes have round
///     ends and corners.
struct FaceDrawing {
  struct Shape {
    QPainterPath path;
    QBrush brush;
    QPen pen;
  };

  QString title; ///< what it shows, in English
  QRectF viewBox;
  std::vector<Shape> shapes;

  /// Nothing for text that is no such drawing.
  static std::optional<FaceDrawing> fromSVG(const QByteArray& svg);

  /// Fills `target`, keeping its proportions.
  void paint(QPainter& painter, const QRectF& target) const;
};

/// The framework's image resource of this name ("smile-0"); nothing when there is none.
std::optional<FaceDrawing> faceNamed(std::string_view name);

} // namespace wrenvale::platform

#endif
