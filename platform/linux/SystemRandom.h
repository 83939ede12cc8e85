// The system's random numbers.

#ifndef WRENVALE_PLATFORM_LINUX_SYSTEMRANDOM_H
#define WRENVALE_PLATFORM_LINUX_SYSTEMRANDOM_H

#include "platform/Random.h"

namespace wrenvale::platform {

class SystemRandom final : public Random {
public:
  std::uint32_t arc4random() override;
};

} // namespace wrenvale::platform

#endif
