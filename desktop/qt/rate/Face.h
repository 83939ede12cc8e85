// The faces of the rate window.

#ifndef WRENVALE_DESKTOP_QT_RATE_FACE_H
#define WRENVALE_DESKTOP_QT_RATE_FACE_H

#include <optional>
#include <string_view>

#include <QPixmap>
#include <QString>

namespace wrenvale::platform {

struct Face {
  QString title; ///< what it shows, in English
  QPixmap picture;
};

/// The framework's image resource of this name ("smile-0"), at four times the size that it is shown
/// in; nothing when there is none. The pictures are made from the drawings beside them:
/// `rsvg-convert --width 528 smile-0.svg --output smile-0.png`. There is a QApplication.
std::optional<Face> faceNamed(std::string_view name);

} // namespace wrenvale::platform

#endif
