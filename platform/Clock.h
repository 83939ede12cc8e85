// The time of day.

#ifndef WRENVALE_PLATFORM_CLOCK_H
#define WRENVALE_PLATFORM_CLOCK_H

#include "base/Value.h"

namespace wrenvale::platform {

/// Any thread.
class Clock {
public:
  virtual ~Clock() = default;
  virtual Date now() const = 0;
};

} // namespace wrenvale::platform

#endif
