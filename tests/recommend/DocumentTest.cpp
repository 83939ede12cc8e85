#include "recommend/RecommenderDocument.h"

#include "recommend/WhiteSpace.h"
#include "tests/recommend/RecommendFixture.h"

namespace wrenvale::recommend {
namespace {

using Optional = std::optional<std::string>;

Optional optional(const Text& text) {
  return text ? Optional(*text) : std::nullopt;
}

TEST(RecommenderDocument, ReadsTextFromWhateverStandsThere) {
  const std::pair<std::string, Optional> rows[] = {
      {R"("")", ""},
      {R"(" a\n")", " a\n"},
      {"12", "12"},
      {"-2.2250738585072014e-308", "-2.2250738585072014e-308"},
      {"-9223372036854775808", "-9223372036854775808"},
      {"true", {}},
      {"null", {}},
      {R"(["a"])", {}},
  };
  for (const auto& [value, text] : rows)
    EXPECT_EQ(optional(Candidate(json(R"({"sp_name": )" + value + "}")).name), text) << value;
}

TEST(RecommenderDocument, TellsAbsentKeysFromEmptyValues) {
  const struct {
    const char* entry;
    std::int64_t score;
    std::string brick;
  } rows[] = {
      {R"({})", 100, "absent"},
      {R"({"dependency_score": "-7", "brick": ""})", -7, ""},
      {R"({"dependency_score": [9], "brick": null})", 0, "null"},
      {R"({"dependency_score": 1e30})", INT64_MAX, "absent"},
      {R"(["dependency_score", "brick"])", 100, "absent"},
  };
  for (const auto& row : rows) {
    const Dependency dependency(json(row.entry));
    EXPECT_EQ(dependency.score(), row.score) << row.entry;
    const auto brick = dependency.brick();
    EXPECT_EQ(brick ? optional(*brick).value_or("null") : "absent", row.brick) << row.entry;
  }
}

TEST(WhiteSpace, IsTrimmedByItsUnicodeDefinition) {
  const std::pair<std::string_view, std::string_view> rows[] = {
      {" \t\r\n\v\f", ""},
      {" a b~\n", "a b~"},
      {"\u00A0\u0085!\u1680\u2028", "!"},
      {"\u2000\u200A\u2029\u202F\u205F\u3000a\u2003\u2009", "a"},
      {"\u200Ba\uFEFF", "\u200Ba\uFEFF"}, // zero width is no white space
      {"\x1F|\x7F", "\x1F|\x7F"},         // nor are these controls
      {"\u0420a\u0420", "\u0420a\u0420"}, // ends in the byte 0xA0
      {"\xA0\x85\x80", "\xA0\x85\x80"},   // no UTF-8
      {std::string_view("\0 a", 3), std::string_view("\0 a", 3)},
  };
  for (const auto& [text, expected] : rows)
    EXPECT_EQ(trimmed(text), expected);
}

} // namespace
} // namespace wrenvale::recommend
