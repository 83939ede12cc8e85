// The system's random numbers.

#ifndef WRENVALE_DESKTOP_LINUX_SYSTEM_SYSTEMRANDOM_H
#define WRENVALE_DESKTOP_LINUX_SYSTEM_SYSTEMRANDOM_H

#include "platform/Random.h"

namespace wrenvale::platform {

class SystemRandom final : public Random {
public:
  std::uint32_t arc4random() override;
};

} // namespace wrenvale::platform

#endif
