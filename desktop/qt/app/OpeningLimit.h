// How often addresses may be opened.

#ifndef WRENVALE_DESKTOP_QT_APP_OPENINGLIMIT_H
#define WRENVALE_DESKTOP_QT_APP_OPENINGLIMIT_H

#include <array>
#include <chrono>
#include <cstddef>

namespace wrenvale::platform {

/// Admits five openings within any two seconds: more than a person makes, and few enough that a
/// page which opens addresses in a loop does not flood the desktop with browsers. One thread.
class OpeningLimit {
public:
  using Moment = std::chrono::steady_clock::time_point;

  /// True when an address may be opened at `moment`, which then counts as an opening; what is
  /// refused does not count. Moments never go back.
  bool admits(Moment moment);

private:
  std::array<Moment, 5> last_{Moment::min(), Moment::min(), Moment::min(), Moment::min(),
                              Moment::min()};
  std::size_t oldest_ = 0;
};

} // namespace wrenvale::platform

#endif
