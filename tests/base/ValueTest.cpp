#include "base/Value.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace wrenvale {
namespace {

constexpr auto kMax = std::numeric_limits<std::int64_t>::max();
constexpr auto kMin = std::numeric_limits<std::int64_t>::min();

TEST(Value, LenientReadings) {
  const struct {
    const char* what;
    Value value;
    std::int64_t integer;
    bool truth;
  } rows[] = {
      {"null", {}, 0, false},
      {"true", true, 1, true},
      {"integer", -7, -7, true},
      {"zero", 0.0, 0, false},
      {"small real", 0.5, 0, true},
      {"negative real", -2.9, -2, true},
      {"not a number", std::nan(""), 0, true},
      {"-huge real", -1e300, kMin, true},
      {"2^63", 0x1p63, kMax, true},
      {"space, sign and letter", " \t-12x", -12, true},
      {"plus", "+5.9", 5, true},
      {"only zeros", " +000", 0, false},
      {"largest", "9223372036854775807", kMax, true},
      {"past the largest", "9223372036854775808", kMax, true},
      {"smallest", "-9223372036854775808", kMin, true},
      {"past the smallest", "-99999999999999999999", kMin, true},
      {"yes", "YES", 0, true},
      {"zeros then letter", "00t", 0, true},
      {"sign only", "-", 0, false},
      {"array", Value::Array{1}, 0, false},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(integerValue(row.value), row.integer) << row.what;
    EXPECT_EQ(truthValue(row.value), row.truth) << row.what;
  }
}

TEST(Value, CollectionsAreReadByIndexAndKey) {
  const Value list = Value::Array{1, "two", {}};
  EXPECT_TRUE(list.at(3).isNull());
  EXPECT_EQ(list.stringAt(1), "two");
  EXPECT_FALSE(list.stringAt(0) || list.stringAt(3));

  const Value dictionary = Value::Dictionary{{"b", {}}, {"a", list}};
  EXPECT_EQ(dictionary.keyAt(0), "a");
  EXPECT_EQ(dictionary.keyAt(2), "");
  EXPECT_EQ(dictionary.indexOf("b"), 1U);
  EXPECT_EQ(dictionary.find("a"), list);
  EXPECT_TRUE(dictionary.contains("b")) << "a null is there all the same";
  EXPECT_FALSE(dictionary.contains("c"));

  for (const Value& other : {Value(5), list}) {
    EXPECT_EQ(other.keyAt(0), "");
    EXPECT_TRUE(other.find("a").isNull());
    EXPECT_TRUE(other.mutableDictionary().empty());
  }
  EXPECT_TRUE(Value(5).at(0).isNull());
  EXPECT_TRUE(dictionary.mutableArray().empty());
}

TEST(Value, EqualityKeepsTypesApart) {
  EXPECT_FALSE(Value(true) == Value(1) || Value(1) == Value(1.0));
  EXPECT_FALSE(Value(Value::Array{}) == Value(Value::Dictionary{}));
  EXPECT_FALSE(Value(Value::Dictionary{{"a", {}}}) == Value(Value::Dictionary{{"b", {}}}));
  EXPECT_TRUE(Value(Data{std::byte{1}}) == Value(Data{std::byte{1}}));
  EXPECT_TRUE(Value(Value::Array{1, "x"}) == Value(Value::Array{1, "x"}));
}

} // namespace
} // namespace wrenvale
