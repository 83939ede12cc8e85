#include "rating/RatingPolicy.h"

#include <limits>

#include <gtest/gtest.h>

namespace wrenvale::rating {
namespace {

using A = Value::Array;
using D = Value::Dictionary;

TEST(RatingRecords, AreAppendedAndNeverLost) {
  const Date date{std::chrono::seconds(1700000000)};
  const Value filed = D{{"History", A{1, 3}}, {"Triggered", true}, {"Date", date}};
  const std::pair<Value, Value> rows[] = {
      {"odd", D{{"120", A{filed}}}},
      {D{{"100", A{"anything", 5}}}, D{{"100", A{"anything", 5}}, {"120", A{filed}}}},
      {D{{"120", A{"first"}}}, D{{"120", A{"first", filed}}}},
      {D{{"120", "odd"}, {"1", "kept"}}, D{{"120", A{filed}}, {"1", "kept"}}},
  };
  for (const auto& [before, after] : rows)
    EXPECT_EQ(withRecord(before, "120", {{kLiked, kRatedInStore}, true, date}), after);
}

TEST(RatingPolicy, CountsWhateverIsStored) {
  using Limits = std::numeric_limits<std::int64_t>;
  const struct {
    Value before;
    std::int64_t count;
    Value after;
  } rows[] = {
      {A{7}, 0, D{{"120", 1}}},
      {D{{"119", "odd"}}, 0, D{{"119", "odd"}, {"120", 1}}},
      {D{{"120", "3"}}, 3, D{{"120", 4}}},
      {D{{"120", A{3}}}, 0, D{{"120", 1}}},
      {D{{"120", Limits::max()}}, Limits::max(), D{{"120", Limits::min()}}},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(counter(row.before, "120"), row.count);
    EXPECT_EQ(withNextCount(row.before, "120"), row.after);
  }
}

} // namespace
} // namespace wrenvale::rating
