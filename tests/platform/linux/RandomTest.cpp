#include "platform/linux/SystemRandom.h"

#include <gtest/gtest.h>

namespace wrenvale::platform {
namespace {

// A bit that stays the same over 64 numbers is no accident: one run in 2^58 would show one.
TEST(SystemRandom, EveryOfTheThirtyTwoBitsVaries) {
  SystemRandom random;
  std::uint32_t everSet = 0;
  std::uint32_t everClear = 0;
  for (int i = 0; i < 64; ++i) {
    const auto number = random.arc4random();
    everSet |= number;
    everClear |= ~number;
  }
  EXPECT_EQ(everSet, 0xffffffffU);
  EXPECT_EQ(everClear, 0xffffffffU);
}

} // namespace
} // namespace wrenvale::platform
