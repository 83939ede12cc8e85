#include "desktop/net/json/JSONReader.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <limits>
#include <thread>

namespace wrenvale::platform {

namespace {

using namespace std::string_literals;
using Array = Value::Array;
using Dictionary = Value::Dictionary;

std::optional<Value> read(std::string text) {
  return JSONReader().JSONObjectWithData(std::move(text));
}

std::string nested(std::size_t depth) {
  return std::string(depth, '[') + std::string(depth, ']');
}

TEST(JSONReader, ReadsEveryShape) {
  const std::pair<std::string, Value> rows[] = {
      {" \t\r\n{ } \n", Dictionary{}},
      {"\xEF\xBB\xBF[1]", Array{1}},
      {"[null,true,false,[],[[{}]]]",
       Array{Value(), true, false, Array{}, Array{Value(Array{Value(Dictionary{})})}}},
      {"[\"\",\"\xC3\xA9\",\"\\u00e9\\ud83d\\ude00\\n\\/\",\"a\\u0000b\"]",
       Array{"", "\xC3\xA9", "\xC3\xA9\xF0\x9F\x98\x80\n/", std::string("a\0b", 3)}},
      {"{\"b\":1,\"a\":{\"c\":[2]},\"\":3}",
       Dictionary{{"a", Dictionary{{"c", Array{2}}}}, {"b", 1}, {"", 3}}},
      {"[0,-0,12,-34]", Array{0, 0, 12, -34}},
      {"[9223372036854775807,-9223372036854775808]",
       Array{std::numeric_limits<std::int64_t>::max(), std::numeric_limits<std::int64_t>::min()}},
      {"[9223372036854775808,18446744073709551615]", Array{0x1p63, 18446744073709551615.0}},
      {"[1.0,1e2,-2.5E-1,1e-400]", Array{1.0, 100.0, -0.25, 0.0}},
  };
  for (const auto& [text, expected] : rows)
    EXPECT_EQ(read(text), expected) << text;
}

TEST(JSONReader, TakesNothingElse) {
  constexpr std::size_t kMostDepth = 512;
  for (const auto& text :
       {""s, "1"s, "null"s, "<html></html>"s, "[1,2"s, "[]]"s, "{\"a\":1,}"s, "[01]"s, "[NaN]"s,
        "[\"\\ud800\"]"s, "[1]\0"s, "[\"\xC0\x80\"]"s, "[1e400]"s, "[18446744073709551616]"s,
        nested(kMostDepth + 2), std::string(3'000'000, '[')})
    EXPECT_FALSE(read(text)) << text.substr(0, 60);
  EXPECT_TRUE(read(nested(kMostDepth + 1))) << "an empty array is no further level";
}

// The window keeps small objects and large ones in different ways.
TEST(JSONReader, ObjectsOfEverySizeKeepOneChildForEachKey) {
  for (const int keys : {1, 2, 19, 20, 21, 60}) {
    std::string text = "{\"twice\": 0";
    Dictionary expected{{"twice", -1}};
    for (int i = 1; i < keys; ++i) {
      text += ", \"k" + std::to_string(i) + "\": " + std::to_string(i);
      expected["k" + std::to_string(i)] = i;
    }
    const Value object = *read(text + ", \"twice\": -1}");
    EXPECT_EQ(object, Value(expected)) << keys;
    EXPECT_FALSE(object.indexOf("k")) << keys;
    for (std::size_t i = 0; i < object.size(); ++i)
      EXPECT_EQ(object.indexOf(object.keyAt(i)), i) << keys;
  }
}

TEST(JSONReader, WindowsOutliveTheirParentsAndServeManyThreads) {
  auto document = read("{\"list\":[{\"k\":\"v\"},7],\"k\":1}");
  ASSERT_TRUE(document);
  const auto list = document->find("list");
  const auto child = list.at(0);
  document.reset();
  EXPECT_EQ(child, Value(Dictionary{{"k", "v"}}));
  std::vector<std::jthread> threads(4);
  for (auto& thread : threads)
    thread = std::jthread([&list] {
      for (int round = 0; round < 1000; ++round)
        EXPECT_EQ(list, Value(Array{Dictionary{{"k", "v"}}, 7}));
    });
}

} // namespace

} // namespace wrenvale::platform
