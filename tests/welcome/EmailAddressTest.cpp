#include "welcome/Newsletter.h"

#include <random>
#include <regex>
#include <string>

#include <gtest/gtest.h>

namespace wrenvale::welcome {
namespace {

TEST(EmailAddress, IsWhatThePatternMatches) {
  const std::regex pattern("[A-Z0-9a-z._%+-]+@[A-Za-z0-9.-]+\\.[A-Za-z]{2,4}");
  const std::string pieces[] = {"a",   "Zz", "09",   ".", "..", "@",    "-",
                                "_%+", "de", "comm", " ", "\n", "\xE9", std::string(1, '\0')};
  std::mt19937 random(1);
  int accepted = 0;
  for (int i = 0; i < 20'000; ++i) {
    std::string text;
    for (auto count = random() % 9; count > 0; --count) {
      const auto most = random() % 4 ? 7 : std::size(pieces); // usual ones often
      text += pieces[random() % most];
    }
    if (i % 2) text = "a" + text + "@" + text + ".de";
    const bool matches = std::regex_match(text, pattern);
    ASSERT_EQ(isEmailAddress(text), matches) << text;
    accepted += matches ? 1 : 0;
  }
  EXPECT_TRUE(accepted > 1000 && accepted < 19'000) << accepted;
}

// Anything worse than linear would not come back within the test's time.
TEST(EmailAddress, TakesAnyLength) {
  const std::string dots = "a@" + std::string(10'000'000, '.');
  EXPECT_TRUE(isEmailAddress(dots + "cd"));
  EXPECT_FALSE(isEmailAddress(dots + "c!"));
  EXPECT_FALSE(isEmailAddress(std::string(10'000'000, '@')));
}

} // namespace
} // namespace wrenvale::welcome
