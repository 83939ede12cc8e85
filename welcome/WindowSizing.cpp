#include "welcome/WindowSizing.h"

#include <cmath>

namespace wrenvale::welcome {

platform::Frame resizedAroundCentre(const platform::Frame& current, double width, double height) {
  return {.x = std::round(current.x + (current.width - width) * 0.5),
          .y = current.y + (current.height - height) * 0.5,
          .width = width,
          .height = height};
}

} // namespace wrenvale::welcome
