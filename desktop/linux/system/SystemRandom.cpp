#include "desktop/linux/system/SystemRandom.h"

#include <cerrno>
#include <cstdlib>

#include <sys/random.h>

#if defined(__GLIBC__)
#define WRENVALE_HAS_ARC4RANDOM __GLIBC_PREREQ(2, 36)
#else
#define WRENVALE_HAS_ARC4RANDOM 0
#endif

namespace wrenvale::platform {

#if WRENVALE_HAS_ARC4RANDOM

std::uint32_t SystemRandom::arc4random() {
  return ::arc4random();
}

#else

std::uint32_t SystemRandom::arc4random() {
  std::uint32_t number = 0;
  while (::getrandom(&number, sizeof number, 0) < 0 && errno == EINTR) {
  }
  return number;
}

#endif

} // namespace wrenvale::platform
