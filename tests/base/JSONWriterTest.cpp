#include "base/JSONWriter.h"

#include <gtest/gtest.h>

#include "desktop/net/json/JSONReader.h"

namespace wrenvale {
namespace {

using std::string_literals::operator""s;

TEST(JSONWriter, IsForPeopleToo) {
  EXPECT_EQ(prettyPrintedJSON({}), "[]");
  EXPECT_EQ(prettyPrintedJSON({{{"name", "Alpha"}, {"points", INT64_MIN}}, {{"odd", 1.5}}, {}}),
            R"([
  {
    "name" : "Alpha",
    "points" : -9223372036854775808
  },
  {
    "odd" : null
  },
  {}
])");
}

// What a page gets when it parses the text; "?" stands for the replacement character.
TEST(JSONWriter, TextSurvivesAndIsUTF8) {
  const struct {
    std::string bytes;
    std::optional<std::string> read{}; ///< else the very same
  } rows[] = {
      {"\"quoted\" \\ and / slashed"},
      {"\b\f\n\r\t\x01\x1F\x7F\0."s},
      {"\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80 \xE2\x80\xA8\xE2\x80\xA9"},
      {"\xC2\x80\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"},
      {"a\x80z\xFF\xC0\xAF", "a?z???"},
      {"\xC3", "?"},
      {"\xE2\x82\"", "??\""},
      {"\xE0\x9F\xBF\xED\xA0\x80", "??????"},
      {"\xF0\x8F\xBF\xBF\xF4\x90\x80\x80", "????????"},
      {"\xF0\x9F\x98\xC3\xA9", "???\xC3\xA9"},
  };
  for (const auto& row : rows) {
    std::string expected = row.read ? "" : row.bytes;
    for (const char c : row.read.value_or(""))
      expected += c == '?' ? "\xEF\xBF\xBD"s : std::string(1, c);
    const auto text = prettyPrintedJSON({{{"name", row.bytes}}});
    const auto read = platform::JSONReader().JSONObjectWithData(text);
    ASSERT_TRUE(read) << text;
    EXPECT_EQ(read->at(0).find("name"), Value(expected)) << text;
    EXPECT_EQ(text.find("\xE2\x80\xA8"), std::string::npos) << "left for scripts to trip over";
  }
}

} // namespace
} // namespace wrenvale
