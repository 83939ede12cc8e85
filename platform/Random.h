// Randomness.

#ifndef WRENVALE_PLATFORM_RANDOM_H
#define WRENVALE_PLATFORM_RANDOM_H

#include <cstdint>

namespace wrenvale::platform {

/// Any thread.
class Random {
public:
  virtual ~Random() = default;

  /// A uniformly distributed 32-bit number.
  virtual std::uint32_t arc4random() = 0;
};

} // namespace wrenvale::platform

#endif
