#include "desktop/net/json/JSONReader.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <limits>
#include <random>
#include <thread>

#include "desktop/net/json/JSONScanner.h"

namespace wrenvale::platform {

namespace {

using Array = Value::Array;
using Dictionary = Value::Dictionary;

JSONResult read(std::string text) {
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
      {"[18446744073709551616,-9223372036854775809]", Array{0x1p64, -0x1p63}},
      {"\xEF\xBB\xBF{\"n\":123456789012345678901234567890,\"m\":[100000000000000000000]}",
       Dictionary{{"n", 123456789012345678901234567890.0}, {"m", Array{1e20}}}},
      {"[1.0,1e2,-2.5E-1,1e-400]", Array{1.0, 100.0, -0.25, 0.0}},
  };
  for (const auto& row : rows) {
    const auto result = read(row.text);
    ASSERT_TRUE(result.object) << row.text << ": " << result.error;
    EXPECT_TRUE(*result.object == row.expected) << row.text << ": " << shown(result.object->at(0));
  }
}

TEST(JSONReader, SaysWhereATextIsWrong) {
  const struct {
    std::string text;
    std::size_t offset;
  } rows[] = {
      {"", 0},
      {"  ", 2},
      {"1", 0},
      {" \"text\"", 1},
      {"null", 0},
      {"<html></html>", 0},
      {"[1,2", 4},
      {"[1 2]", 3},
      {"[1,]", 3},
      {"[,1]", 1},
      {"[]]", 2},
      {"[] []", 3},
      {"[}", 1},
      {"{\"a\"}", 4},
      {"{\"a\":}", 5},
      {"{\"a\":1,}", 7},
      {"{a:1}", 1},
      {"{1:1}", 1},
      {"[tru]", 4},
      {"[nulll]", 5},
      {"[01]", 2},
      {"[+1]", 1},
      {"[-]", 2},
      {"[1.]", 3},
      {"[.5]", 1},
      {"[1e]", 3},
      {"[NaN]", 1},
      {"[0x10]", 2},
      {"[\"a]", 4},
      {"[\"\\x\"]", 3},
      {"[\"\\u12g4\"]", 6},
      {"[\"\\ud800\"]", 4},
      {"[\"\\ude00\"]", 4},
      {"[\"a\nb\"]", 3},
      {std::string("[\"\0\"]", 5), 2},
      {std::string("[1]\0", 4), 3},
      {"[\"\xFF\"]", 2},
      {"[\"\xC0\x80\"]", 2},
      {"[\"\xED\xA0\x80\"]", 2},
      {"[\"\xF4\x90\x80\x80\"]", 2},
      {"[\"a\xC3", 3},
      {"\xEF\xBB\xBF[1,]", 6},
      {"\xEF\xBB[1]", 0},
      {"[1, 1e400]", 4},
      {"[123456789012345678901234567890, -" + std::string(400, '9') + "]", 33},
      {"[/* no */1]", 1},
      {nested(kJSONMaxDepth + 2), kJSONMaxDepth},
      {nested(3'000'000), kJSONMaxDepth},
      {std::string(3'000'000, '['), kJSONMaxDepth},
  };
  for (const auto& row : rows) {
    const auto result = read(row.text);
    EXPECT_FALSE(result.object) << row.text.substr(0, 60);
    EXPECT_EQ(result.errorOffset, row.offset) << row.text.substr(0, 60) << ": " << result.error;
    EXPECT_FALSE(result.error.empty()) << row.text.substr(0, 60);
  }
  EXPECT_TRUE(read(nested(kJSONMaxDepth + 1)).object) << "an empty array is no further level";
}

// The window keeps small objects and large ones in different ways.
TEST(JSONReader, ObjectsOfEverySizeKeepOneChildForEachKey) {
  for (const int keys : {1, 2, 19, 20, 21, 60}) {
    std::string text = "{\"twice\": \"first\"";
    for (int i = 1; i < keys; ++i)
      text += ", \"k" + std::to_string(i) + "\": \"" + std::to_string(i) + "\"";
    const Value object = *read(text + ", \"twice\": \"last\"}").object;
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
  auto document = read("{\"list\":[{\"k\":\"v\"},7],\"k\":1}").object;
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

// One byte of a document changed, taken out, put in or everything cut off behind it.
std::string mutated(std::string text, std::mt19937& random) {
  static constexpr std::string_view kBytes =
      "[]{},:\"\\ue-+.0159tfn \n\x01\x7F\x80\xC3\xED\xF4\xFF";
  const auto at = random() % text.size();
  const char byte = kBytes[random() % kBytes.size()];
  switch (random() % 4) {
  case 0:
    text[at] = byte;
    break;
  case 1:
    text.erase(at, 1 + random() % 3);
    break;
  case 2:
    text.insert(at, 1, byte);
    break;
  default:
    text.resize(at);
  }
  return text;
}

// The reader's verdict is the fast parser's, the scanner's an independent reading of the grammar.
TEST(JSONReader, ParserAndScannerAgree) {
  const std::string documents[] = {
      "{\"apps\":[{\"id\":\"a.b\",\"n\":-12.5e+3,\"ok\":true},null,false,[[]],{}],\"x\":0}",
      "[\"\\u00e9\\ud83d\\ude00\\\\\\\"\",\"\xC3\xA9\xF0\x9F\x98\x80\xE2\x82\xAC\",1.0E-2,10]",
      "[0,-0,1234567890123456789,18446744073709551615,1e5,{\"a\":{\"a\":\"\"}}]",
  };
  std::mt19937 random(4711);
  int accepted = 0;
  for (int round = 0; round < 60'000; ++round) {
    auto text = mutated(documents[random() % std::size(documents)], random);
    if (random() % 2 && !text.empty()) text = mutated(text, random);
    const auto result = read(text);
    const auto fault = JSONScanner(text, [](std::string_view) { return true; }).firstFault();
    accepted += result.object.has_value();
    const bool isLargeNumber = result.error == "a number is too large";
    ASSERT_TRUE(result.object.has_value() == !fault.has_value() || isLargeNumber)
        << text << "\nreader: " << (result.object ? "document" : result.error)
        << "\nscanner: " << (fault ? fault->message : "document");
  }
  EXPECT_GT(accepted, 1000);
}

} // namespace

} // namespace wrenvale::platform
