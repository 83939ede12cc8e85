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
  const struct {
    const char* value;
    Optional text;
  } rows[] = {
      {R"("Alpha")", "Alpha"},    {R"("")", ""},
      {R"(" a\n")", " a\n"},      {"-3", "-3"},
      {"1e300", "1e+300"},        {"-2.2250738585072014e-308", "-2.2250738585072014e-308"},
      {"true", std::nullopt},     {"null", std::nullopt},
      {R"(["a"])", std::nullopt},
  };
  for (const auto& row : rows) {
    const Value entry = json(R"({"sp_name": )" + std::string(row.value) + "}");
    EXPECT_EQ(optional(Candidate(entry).name), row.text) << row.value;
  }
}

TEST(RecommenderDocument, TellsAbsentKeysFromEmptyValues) {
  const struct {
    const char* entry;
    std::int64_t score;
    std::optional<Optional> brick;
  } rows[] = {
      {R"({})", 100, std::nullopt},
      {R"({"dependency_score": 25, "brick": "b"})", 25, "b"},
      {R"({"dependency_score": "-7", "brick": ""})", -7, ""},
      {R"({"dependency_score": null, "brick": null})", 0, Optional()},
      {R"({"dependency_score": 1e30})", INT64_MAX, std::nullopt},
      {R"(["dependency_score", "brick"])", 100, std::nullopt},
  };
  for (const auto& row : rows) {
    const Dependency dependency(json(row.entry));
    EXPECT_EQ(dependency.score(), row.score) << row.entry;
    const auto brick = dependency.brick();
    ASSERT_EQ(brick.has_value(), row.brick.has_value()) << row.entry;
    EXPECT_EQ(optional(brick.value_or(Text())), row.brick.value_or(std::nullopt)) << row.entry;
  }
}

TEST(WhiteSpace, IsTrimmedByItsUnicodeDefinition) {
  const struct {
    std::string_view text, trimmed;
  } rows[] = {
      {"", ""},
      {" \t\r\n\v\f", ""},
      {" com.example.host\n", "com.example.host"},
      {"\u00A0\u0085a\u1680\u2028", "a"},
      {"\u2000\u200A\u2029\u202F\u205F\u3000a\u2003\u2009", "a"},
      {"\u200Ba\uFEFF", "\u200Ba\uFEFF"}, // zero width is no white space
      {"\u180E\x1F"
       "a\x7F",
       "\u180E\x1F"
       "a\x7F"},                          // nor are these controls
      {"\u0420a\u0420", "\u0420a\u0420"}, // ends in the byte 0xA0
      {"\xA0\x85\x80", "\xA0\x85\x80"},   // no UTF-8
  };
  for (const auto& row : rows)
    EXPECT_EQ(trimmed(row.text), row.trimmed) << row.text;
}

} // namespace
} // namespace wrenvale::recommend
