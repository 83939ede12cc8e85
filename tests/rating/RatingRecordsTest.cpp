#include "rating/RatingPolicy.h"

#include <gtest/gtest.h>

namespace wrenvale::rating {
namespace {

const Date kDate{std::chrono::seconds(1700000000)};
const Value kFiled =
    Value::Dictionary{{"History", Value::Array{1, 3}}, {"Triggered", true}, {"Date", kDate}};

TEST(RatingRecords, AreAppendedAndNeverLost) {
  const Value other = Value::Array{"anything", 5};
  const struct {
    const char* what;
    Value before;
    Value after;
  } rows[] = {
      {"nothing there", {}, Value::Dictionary{{"120", Value::Array{kFiled}}}},
      {"no dictionary", "odd", Value::Dictionary{{"120", Value::Array{kFiled}}}},
      {"other versions", Value::Dictionary{{"100", other}},
       Value::Dictionary{{"100", other}, {"120", Value::Array{kFiled}}}},
      {"second record", Value::Dictionary{{"120", Value::Array{"first"}}},
       Value::Dictionary{{"120", Value::Array{"first", kFiled}}}},
      {"no array", Value::Dictionary{{"120", "odd"}, {"1", "kept"}},
       Value::Dictionary{{"120", Value::Array{kFiled}}, {"1", "kept"}}},
  };
  for (const auto& row : rows)
    EXPECT_EQ(withRecord(row.before, "120", {{kLiked, kRatedInStore}, true, kDate}), row.after)
        << row.what;
}

} // namespace
} // namespace wrenvale::rating
