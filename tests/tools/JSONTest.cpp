#include <gtest/gtest.h>

#include <random>

#include "desktop/net/json/JSONReader.h"
#include "tools/wrenvale/json/JSONDocument.h"

namespace wrenvale::kit {
namespace {

// Some bytes of a document taken out or one put in, or everything cut off behind them.
void change(std::string& text, std::mt19937& random) {
  static constexpr std::string_view kBytes =
      "[]{},:\"\\ue-+.0159tfn \n\x01\x7F\x80\xC3\xED\xF4\xFF";
  const auto at = text.empty() ? 0 : random() % text.size();
  text.replace(at, random() % 3, random() % 2, kBytes[random() % kBytes.size()]);
  if (random() % 4 == 0) text.resize(at);
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
    auto text = documents[random() % std::size(documents)];
    for (auto changes = random() % 3; changes > 0; --changes)
      change(text, random);
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
