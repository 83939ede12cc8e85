#include "welcome/Newsletter.h"

#include <random>
#include <regex>
#include <string>

#include <gtest/gtest.h>

namespace wrenvale::welcome {
namespace {

TEST(EmailAddress, IsWhatThePatternMatches) {
  const std::regex pattern("[A-Z0-9a-z._%+-]+@[A-Za-z0-9.-]+\\.[A-Za-z]{2,4}");
  const std::string pieces[] = {"a",   "Zz", "7",    ".", "..", "@",    "-",
                                "_%+", "de", "comm", " ", "\n", "\xE9", std::string(1, '\0')};
  std::mt19937 random(1);
  int accepted = 0;
  for (int i = 0; i < 20'000; ++i) {
    std::string text;
    for (auto count = random() % 9; count > 0; --count) {
      // The usual pieces often, so that both answers come up.
      const auto usual = random() % 4 != 0;
      text += pieces[usual ? random() % 7 : random() % std::size(pieces)];
    }
    if (i % 2) text = "a" + text + "@" + text + ".de";
    const bool matches = std::regex_match(text, pattern);
    ASSERT_EQ(isEmailAddress(text), matches) << text;
    accepted += matches ? 1 : 0;
  }
  EXPECT_GT(accepted, 1000);
  EXPECT_LT(accepted, 19'000);
}

// Anything worse than linear would not come back within the test's time.
TEST(EmailAddress, TakesAnyLength) {
  constexpr std::size_t kLength = 10'000'000;
  std::string dots = "a@";
  while (dots.size() < kLength)
    dots += "b.cd";
  EXPECT_TRUE(isEmailAddress(dots));
  EXPECT_FALSE(isEmailAddress(dots + "!"));
  EXPECT_FALSE(isEmailAddress(std::string(kLength, '@')));
}

} // namespace
} // namespace wrenvale::welcome
