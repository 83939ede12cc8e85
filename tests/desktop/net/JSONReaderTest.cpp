#include "desktop/net/json/JSONReader.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <limits>
#include <thread>

namespace wrenvale::platform {

namespace {

using Array = Value::Array;
using Dictionary = Value::Dictionary;

std::optional<Value> read(std::string text) {
  return JSONReader().JSONObjectWithData(std::move(text));
}

std::string nested(std::size_t depth) {
  return std::string(depth, '[') + std::string(depth, ']');
}

std::string shown(const Value& value) {
  if (const auto* integer = value.integer()) return std::to_string(*integer);
  if (const auto* real = value.real()) return "real " + std::to_string(*real);
  if (const auto* string = value.string()) return "\"" + *string + "\"";
  return "array or dictionary of " + std::to_string(value.size());
}

TEST(JSONReader, ReadsEveryShape) {
  const auto nul = std::string("a\0b", 3);
  const struct {
    std::string text;
    Value expected;
  } rows[] = {
      {"[]", Array{}},
      {" \t\r\n{ } \n", Dictionary{}},
      {"\xEF\xBB\xBF[1]", Array{1}},
      {"[null,true,false]", Array{Value(), true, false}},
      {"[\"\",\"\xC3\xA9\",\"\\u00e9\\ud83d\\ude00\\n\\/\"]",
       Array{"", "\xC3\xA9", "\xC3\xA9\xF0\x9F\x98\x80\n/"}},
      {"[\"a\\u0000b\"]", Array{nul}},
      {"[[],{},[[{}]]]", Array{Array{}, Dictionary{}, Array{Value(Array{Value(Dictionary{})})}}},
      {"{\"b\":1,\"a\":{\"c\":[2]},\"\":3}",
       Dictionary{{"a", Dictionary{{"c", Array{2}}}}, {"b", 1}, {"", 3}}},
      {"{\"a\":1,\"b\":2,\"a\":3}", Dictionary{{"a", 3}, {"b", 2}}},
      {"{\"a\":{\"x\":1},\"\\u0061\":[]}", Dictionary{{"a", Array{}}}},
      {"[0,-0,12,-34]", Array{0, 0, 12, -34}},
      {"[9223372036854775807,-9223372036854775808]",
       Array{std::numeric_limits<std::int64_t>::max(), std::numeric_limits<std::int64_t>::min()}},
      {"[9223372036854775808,18446744073709551615]", Array{0x1p63, 18446744073709551615.0}},
      {"[1.0,1e2,-2.5E-1,1e-400]", Array{1.0, 100.0, -0.25, 0.0}},
  };
  for (const auto& row : rows) {
    const auto result = read(row.text);
    ASSERT_TRUE(result) << row.text;
    EXPECT_TRUE(*result == row.expected) << row.text << ": " << shown(result->at(0));
  }
}

TEST(JSONReader, TakesNothingElse) {
  constexpr std::size_t kMostDepth = 512;
  const std::string rows[] = {
      "",
      "  ",
      "1",
      " \"text\"",
      "null",
      "<html></html>",
      "[1,2",
      "[]]",
      "[] []",
      "{\"a\":1,}",
      "{a:1}",
      "[01]",
      "[NaN]",
      "[\"\\ud800\"]",
      std::string("[1]\0", 4),
      "[\"\xC0\x80\"]",
      "\xEF\xBB[1]",
      "[1, 1e400]",
      "[18446744073709551616]",
      nested(kMostDepth + 2),
      nested(3'000'000),
      std::string(3'000'000, '['),
  };
  for (const auto& row : rows)
    EXPECT_FALSE(read(row)) << row.substr(0, 60);
  EXPECT_TRUE(read(nested(kMostDepth + 1))) << "an empty array is no further level";
}

// The window keeps small objects and large ones in different ways.
TEST(JSONReader, ObjectsOfEverySizeKeepOneChildForEachKey) {
  for (const int keys : {1, 2, 19, 20, 21, 60}) {
    std::string text = "{\"twice\": \"first\"";
    for (int i = 1; i < keys; ++i)
      text += ", \"k" + std::to_string(i) + "\": \"" + std::to_string(i) + "\"";
    const Value object = *read(text + ", \"twice\": \"last\"}");
    ASSERT_EQ(object.size(), static_cast<std::size_t>(keys));
    EXPECT_EQ(object.find("twice"), Value("last")) << keys;
    EXPECT_FALSE(object.indexOf("k")) << keys;
    for (std::size_t i = 0; i < object.size(); ++i) {
      const auto key = object.keyAt(i);
      EXPECT_EQ(object.indexOf(key), i) << keys;
      EXPECT_EQ(object.stringAt(i), key == "twice" ? "last" : key.substr(1)) << keys;
    }
  }
}

TEST(JSONReader, WindowsOutliveTheirParentsAndServeManyThreads) {
  auto document = read("{\"list\":[{\"k\":\"v\"},7],\"k\":1}");
  ASSERT_TRUE(document);
  const auto list = document->find("list");
  const auto child = list.at(0);
  document.reset();
  EXPECT_EQ(child, Value(Dictionary{{"k", "v"}}));
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([&list] {
      for (int round = 0; round < 1000; ++round)
        EXPECT_EQ(list, Value(Array{Dictionary{{"k", "v"}}, 7}));
    });
  }
  for (auto& thread : threads)
    thread.join();
}

} // namespace

} // namespace wrenvale::platform
