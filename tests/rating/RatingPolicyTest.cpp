#include "rating/RatingPolicy.h"

#include <limits>

#include <gtest/gtest.h>

namespace wrenvale::rating {
namespace {

constexpr auto kLargest = std::numeric_limits<std::int64_t>::max();
constexpr auto kSmallest = std::numeric_limits<std::int64_t>::min();

TEST(RatingPolicy, CountsWhateverIsStored) {
  using D = Value::Dictionary;
  const struct {
    const char* what;
    Value before;
    std::int64_t count;
    Value after;
  } rows[] = {
      {"nothing there", {}, 0, D{{"120", 1}}},
      {"no dictionary", Value::Array{7}, 0, D{{"120", 1}}},
      {"other versions, odd ones too", D{{"119", "odd"}, {"121", Value::Array{}}}, 0,
       D{{"119", "odd"}, {"120", 1}, {"121", Value::Array{}}}},
      {"counted before", D{{"120", 3}}, 3, D{{"120", 4}}},
      {"a number as text", D{{"120", "3"}}, 3, D{{"120", 4}}},
      {"no number", D{{"120", D{{"120", 3}}}}, 0, D{{"120", 1}}},
      {"below zero", D{{"120", -1}}, -1, D{{"120", 0}}},
      {"the largest integer", D{{"120", kLargest}}, kLargest, D{{"120", kSmallest}}},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(counter(row.before, "120"), row.count) << row.what;
    EXPECT_EQ(withNextCount(row.before, "120"), row.after) << row.what;
  }
}

} // namespace
} // namespace wrenvale::rating
