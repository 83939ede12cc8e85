// The system's time of day.

#ifndef WRENVALE_DESKTOP_LINUX_SYSTEM_SYSTEMCLOCK_H
#define WRENVALE_DESKTOP_LINUX_SYSTEM_SYSTEMCLOCK_H

#include "platform/Clock.h"

namespace wrenvale::platform {

class SystemClock final : public Clock {
public:
  Date now() const override {
    return std::chrono::floor<Date::duration>(std::chrono::system_clock::now());
  }
};

} // namespace wrenvale::platform

#endif
