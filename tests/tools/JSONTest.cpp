#include <gtest/gtest.h>

#include <random>

#include "desktop/net/json/JSONReader.h"
#include "tools/wrenvale/json/JSONDocument.h"

namespace wrenvale::kit {
namespace {

TEST(JSONDocument, SaysWhereATextIsWrong) {
  const struct {
    std::string text;
    std::size_t offset;
    const char* error;
  } rows[] = {
      {"", 0, "unexpected end of input"},
      {"1", 0, "this must be an array or a dictionary"},
      {"[1,2", 4, "unexpected end of input"},
      {"[1,]", 3, "unexpected ']'"},
      {"{\"a\":1 \"b\":2}", 9, "unexpected string literal"},
      {"\xEF\xBB\xBF[1,]", 6, "unexpected ']'"},
      {"[1, 18446744073709551616]", 4, "a number is too large"},
      {std::string(1000, '['), 513, "nested too deeply"},
  };
  for (const auto& row : rows) {
    const auto document = readJSON(row.text);
    EXPECT_FALSE(document.value) << row.text;
    EXPECT_EQ(document.errorOffset, row.offset) << row.text << ": " << document.error;
    EXPECT_NE(document.error.find(row.error), std::string::npos) << row.text << document.error;
  }
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

// What the kit says of a document holds in a host.
TEST(JSONDocument, IsWhatHostsRead) {
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
    const auto host = platform::JSONReader().JSONObjectWithData(text);
    const auto kit = readJSON(text);
    ASSERT_EQ(kit.value.has_value(), host.has_value()) << text << '\n' << kit.error;
    ASSERT_TRUE(!host || *kit.value == *host) << text;
    accepted += host.has_value();
  }
  EXPECT_GT(accepted, 1000);
}

} // namespace
} // namespace wrenvale::kit
