#include "desktop/qt/rate/Face.h"

#include <QCoreApplication>

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

const struct {
  std::string_view name;
  const char* title;
  const unsigned char* png;
  const unsigned long& size;
} kFaces[] = {
    {"smile-0", kTitles[0], wrenvale_smile_0, wrenvale_smile_0_size},
    {"smile-1", kTitles[1], wrenvale_smile_1, wrenvale_smile_1_size},
    {"smile-2", kTitles[2], wrenvale_smile_2, wrenvale_smile_2_size},
};

} // namespace

std::optional<Face> faceNamed(std::string_view name) {
  for (const auto& face : kFaces) {
    if (face.name != name) continue;
    Face result{.title = face.title, .picture = {}};
    result.picture.loadFromData(face.png, static_cast<unsigned>(face.size), "PNG");
    return result;
  }
  return std::nullopt;
}

} // namespace wrenvale::platform
