#include "recommend/Scoring.h"

#include "recommend/KVXAppRecommendation.h"
#include "recommend/RecommenderDocument.h"
#include "tests/recommend/RecommendFixture.h"

namespace wrenvale::recommend {
namespace {

TEST_F(RecommendTest, CopiesTheCandidateIntoTheRecord) {
  const Candidate candidate(json(R"({
    "bundle_id": " alpha ", "sp_name": "Alpha", "sp_icon": "an icon.png",
    "brick": "b", "media": "m", "sp_description": "d", "sp_link_name": "Get", "link": "l",
    "priority_score": 7, "group": "g", "alert_text": "Thanks", "alert_link": "al", "alert_link_name": "Go"})"));
  const Recommendation::Dictionary forPage = {
      {"name", "Alpha"},
      {"bundleID", " alpha "},
      {"iconURL", "http://vendor.example/store/images/an icon.png"},
      {"points", 7},
      {"link", "l"},
      {"descr", "d"},
      {"linkName", "Get"}};
  for (const bool polite : {false, true}) {
    const auto record = buildApp(candidate, polite, context());
    EXPECT_EQ(record->dictionaryRepresentation(), forPage);
    EXPECT_EQ(record->brickURL(), "b");
    EXPECT_EQ(record->mediaURL(), "m");
    EXPECT_EQ(record->group(), "g");
    EXPECT_EQ(record->alertText().value_or("-"), polite ? "-" : "Thanks");
    EXPECT_EQ(record->alertLink().value_or("-"), polite ? "-" : "al");
    EXPECT_EQ(record->alertButtonName().value_or("-"), polite ? "-" : "Go");
  }
  const Recommendation::Dictionary bare = {
      {"name", ""},    {"bundleID", "b"}, {"iconURL", "http://vendor.example/store/images/(null)"},
      {"points", 0},   {"link", ""},      {"descr", ""},
      {"linkName", ""}};
  const Candidate other(json(R"({"bundle_id": "b"})"));
  EXPECT_EQ(buildApp(other, false, context())->dictionaryRepresentation(), bare);
}

TEST_F(RecommendTest, ScoresACandidate) {
  using Text = std::optional<std::string>;
  const struct {
    std::string priority, dependencies;
    std::int64_t points;
    Text brick = "B", description = "D";
  } rows[] = {
      {"10", R"({"bundle_id": "a", "dependency_score": 25}, {"bundle_id": "b"})", 135},
      {R"("-40")", "", -40},
      {"2.9", R"({"bundle_id": "A", "brick": "X"})", 2},
      {"0", R"({"bundle_id": "\u2003a\n", "brick": null})", 100, Text()},
      {"0",
       R"({"bundle_id": "a", "brick": "X", "sp_description": "X", "link": "X"},
          {"bundle_id": "b", "brick": "Y", "dependency_score": 0},
          {"bundle_id": "c", "sp_description": "Z"})",
       100, "Y", "X"},
      {"0", R"({"bundle_id": "a", "in_app_check": true, "brick": "X"})", 0},
      {"0", R"({"bundle_id": "a", "in_app_check": "no"})", 100},
      {"0", R"({"bundle_id": " host", "in_app_check": "YES"})", 100},
      {"0", R"(null, "a", ["bundle_id", "a"], {}, {"bundle_id": null})", 0},
      // Both sums wrap around.
      {"9223372036854775807",
       R"({"bundle_id": "a", "dependency_score": 9223372036854775807},
          {"bundle_id": "b", "dependency_score": 3})",
       1},
  };
  applications.identifiers = {"host", "a", "b"};
  for (const auto& row : rows) {
    const Candidate candidate(
        json(R"({"bundle_id": "x", "brick": "B", "sp_description": "D", "link": "L",
                 "priority_score": )" +
             row.priority + R"(, "dependency": [)" + row.dependencies + "]}"));
    const auto record = buildApp(candidate, false, context());
    EXPECT_EQ(record->points(), row.points) << row.dependencies;
    EXPECT_EQ(record->brickURL(), row.brick) << row.dependencies;
    EXPECT_EQ(record->descr(), row.description) << row.dependencies;
    EXPECT_EQ(record->link(), "L") << row.dependencies;
  }
}

TEST_F(RecommendTest, CountsAnInAppCheckWhileNothingIsBought) {
  const Candidate candidate(json(R"({"bundle_id": "x", "exclude": ["y"], "dependency": [
    {"bundle_id": "host", "in_app_check": 1},
    {"bundle_id": "host", "in_app_check": 1, "dependency_score": 1}]})"));
  applications.identifiers = {"host"};
  auto world = context();
  const auto points = [&] { return buildApp(candidate, false, world)->points(); };
  EXPECT_EQ(points(), 101) << "nobody to ask";
  int asked = 0; // anew for every entry
  world.purchases = [&] { return ++asked % 2 ? Value::Array{} : Value::Array{"pro"}; };
  world.purchaseRecord = [] { return false; };
  EXPECT_EQ(points(), 100);
  world.purchaseRecord = [] { return true; };
  EXPECT_EQ(points(), 0);
  EXPECT_EQ(asked, 2) << "not after the record's yes";
  world.isInstalled = nullptr;
  EXPECT_EQ(points(), 0);
}

} // namespace
} // namespace wrenvale::recommend
