#include "desktop/qt/rate/FaceDrawing.h"

#include <QPainter>
#include <QRegularExpression>
#include <QXmlStreamReader>

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

// Numbers and commands of a path or a view box, in order.
class Tokens {
public:
  explicit Tokens(QStringView text) {
    static const auto& token = *new QRegularExpression("[A-Za-z]|[-+]?[0-9]*\\.?[0-9]+");
    for (auto found = token.globalMatch(text.toString()); found.hasNext();)
      tokens_.push_back(found.next().captured());
  }

  bool atEnd() const { return next_ == tokens_.size(); }
  char command() { return atEnd() ? '\0' : tokens_[next_++].front().toLatin1(); }
  /// 0 once there are no more.
  qreal number() { return atEnd() ? 0 : tokens_[next_++].toDouble(); }
  QPointF point() {
    const qreal x = number();
    return {x, number()};
  }

private:
  std::vector<QString> tokens_;
  std::size_t next_ = 0;
};

bool addSegment(QPainterPath& path, Tokens& tokens) {
  switch (tokens.command()) {
  case 'M':
    path.moveTo(tokens.point());
    return true;
  case 'L':
    path.lineTo(tokens.point());
    return true;
  case 'Q': {
    const QPointF control = tokens.point();
    path.quadTo(control, tokens.point());
    return true;
  }
  case 'C': {
    const QPointF first = tokens.point();
    const QPointF second = tokens.point();
    path.cubicTo(first, second, tokens.point());
    return true;
  }
  case 'Z':
    path.closeSubpath();
    return true;
  default:
    return false;
  }
}

QPainterPath pathOf(QStringView data) {
  QPainterPath path;
  Tokens tokens(data);
  while (!tokens.atEnd() && addSegment(path, tokens)) {
  }
  return path;
}

QPainterPath ellipse(const QXmlStreamAttributes& attributes, const char* across,
                     const char* along) {
  const auto number = [&](const char* name) { return attributes.value(name).toDouble(); };
  QPainterPath path;
  path.addEllipse(QPointF(number("cx"), number("cy")), number(across), number(along));
  return path;
}

QBrush brushOf(const QXmlStreamAttributes& attributes) {
  const QStringView fill = attributes.value("fill");
  if (fill == QLatin1String("none")) return Qt::NoBrush;
  QColor color(fill.isEmpty() ? QString("black") : fill.toString());
  if (attributes.hasAttribute("fill-opacity"))
    color.setAlphaF(attributes.value("fill-opacity").toFloat());
  return color;
}

QPen penOf(const QXmlStreamAttributes& attributes) {
  if (!attributes.hasAttribute("stroke")) return Qt::NoPen;
  const qreal width = attributes.value("stroke-width").toDouble();
  return QPen(QColor(attributes.value("stroke").toString()), width, Qt::SolidLine, Qt::RoundCap,
              Qt::RoundJoin);
}

QPainterPath outline(QStringView element, const QXmlStreamAttributes& attributes) {
  if (element == QLatin1String("circle")) return ellipse(attributes, "r", "r");
  if (element == QLatin1String("ellipse")) return ellipse(attributes, "rx", "ry");
  if (element == QLatin1String("path")) return pathOf(attributes.value("d"));
  return {};
}

QRectF rectOf(QStringView viewBox) {
  Tokens tokens(viewBox);
  const QPointF origin = tokens.point();
  const QPointF size = tokens.point();
  return {origin, QSizeF(size.x(), size.y())};
}

void addElement(FaceDrawing& drawing, QXmlStreamReader& xml) {
  const QXmlStreamAttributes attributes = xml.attributes();
  if (xml.name() == QLatin1String("svg")) drawing.viewBox = rectOf(attributes.value("viewBox"));
  if (const QPainterPath path = outline(xml.name(), attributes); !path.isEmpty())
    drawing.shapes.push_back({path, brushOf(attributes), penOf(attributes)});
  if (xml.name() == QLatin1String("title")) drawing.title = xml.readElementText();
}

QByteArray resource(std::string_view name) {
  const auto bytes = [](const unsigned char* data, unsigned long size) {
    return QByteArray::fromRawData(reinterpret_cast<const char*>(data),
                                   static_cast<qsizetype>(size));
  };
  if (name == "smile-0") return bytes(wrenvale_smile_0, wrenvale_smile_0_size);
  if (name == "smile-1") return bytes(wrenvale_smile_1, wrenvale_smile_1_size);
  if (name == "smile-2") return bytes(wrenvale_smile_2, wrenvale_smile_2_size);
  return {};
}

} // namespace

std::optional<FaceDrawing> FaceDrawing::fromSVG(const QByteArray& svg) {
  FaceDrawing drawing;
  QXmlStreamReader xml(svg);
  while (!xml.atEnd())
    if (xml.readNext() == QXmlStreamReader::StartElement) addElement(drawing, xml);
  if (xml.hasError() || drawing.viewBox.isEmpty() || drawing.shapes.empty()) return std::nullopt;
  return drawing;
}

void FaceDrawing::paint(QPainter& painter, const QRectF& target) const {
  const qreal scale = qMin(target.width() / viewBox.width(), target.height() / viewBox.height());
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(target.center());
  painter.scale(scale, scale);
  painter.translate(-viewBox.center());
  for (const Shape& shape : shapes) {
    painter.setBrush(shape.brush);
    painter.setPen(shape.pen);
    painter.drawPath(shape.path);
  }
  painter.restore();
}

std::optional<FaceDrawing> faceNamed(std::string_view name) {
  return FaceDrawing::fromSVG(resource(name));
}

} // namespace wrenvale::platform
