#include "recommend/Scoring.h"

#include "recommend/KVXAppRecommendation.h"
#include "recommend/RecommenderDocument.h"
#include "tests/recommend/RecommendFixture.h"

namespace wrenvale::recommend {
namespace {

TEST_F(RecommendTest, CopiesTheCandidateIntoTheRecord) {
  const Candidate candidate(json(R"({
    "bundle_id": " com.example.alpha ", "sp_name": "Alpha", "sp_icon": "alpha icon.png",
    "brick": "b", "media": "m", "sp_description": "d", "sp_link_name": "Get", "link": "l",
    "group": "g", "alert_text": "Thanks", "alert_link": "al", "alert_link_name": "Go"})"));
  for (const bool polite : {false, true}) {
    const auto record = buildApp(candidate, polite, context());
    EXPECT_EQ(record->bundleID(), " com.example.alpha ");
    EXPECT_EQ(record->name(), "Alpha");
    EXPECT_EQ(record->iconURL(), "http://vendor.example/store/images/alpha icon.png");
    EXPECT_EQ(record->brickURL(), "b");
    EXPECT_EQ(record->mediaURL(), "m");
    EXPECT_EQ(record->descr(), "d");
    EXPECT_EQ(record->linkName(), "Get");
    EXPECT_EQ(record->link(), "l");
    EXPECT_EQ(record->group(), "g");
    EXPECT_EQ(record->mediaPath(), std::nullopt);
    EXPECT_EQ(record->alertText(), polite ? std::nullopt : std::optional<std::string>("Thanks"));
    EXPECT_EQ(record->alertLink(), polite ? std::nullopt : std::optional<std::string>("al"));
    EXPECT_EQ(record->alertButtonName(), polite ? std::nullopt : std::optional<std::string>("Go"));
  }
  const auto bare = buildApp(Candidate(json(R"({"bundle_id": "b"})")), false, context());
  EXPECT_EQ(bare->iconURL(), "http://vendor.example/store/images/(null)");
  EXPECT_EQ(bare->points(), 0);
}

struct ScoreRow {
  const char* fields; ///< of a candidate with the brick "B", the description "D" and the link "L"
  std::int64_t points;
  std::optional<std::string> brick = "B", description = "D";
};

// com.example.host, a and b are installed.
const ScoreRow kScores[] = {
    {R"("priority_score": 10, "dependency": [{"bundle_id": "a", "dependency_score": 25},
                                             {"bundle_id": "b"}])",
     135},
    {R"("priority_score": "-40")", -40},
    {R"("dependency": [{"bundle_id": "c", "brick": "X", "sp_description": "X"}])", 0},
    {R"("dependency": [{"bundle_id": "\u2003a\n"}])", 100},
    {R"("dependency": [{"bundle_id": "a", "brick": "X", "link": "X", "dependency_score": -3}])", -3,
     "X"},
    {R"("dependency": [{"bundle_id": "a", "brick": "X", "sp_description": "X"},
                       {"bundle_id": "b", "brick": "Y", "dependency_score": 0},
                       {"bundle_id": "c", "sp_description": "Z"}])",
     100, "Y", "X"},
    {R"("dependency": [{"bundle_id": "a", "brick": null}])", 100, std::nullopt},
    {R"("dependency": [{"bundle_id": "a", "in_app_check": true, "brick": "X"}])", 0},
    {R"("dependency": [{"bundle_id": "a", "in_app_check": "no"}])", 100},
    {R"("dependency": [{"bundle_id": " com.example.host", "in_app_check": "YES", "brick": "X"}])",
     100, "X"},
    // What is no dependency.
    {R"("dependency": {"bundle_id": "a"})", 0},
    {R"("dependency": [null, "a", 1, ["bundle_id", "a"], {}, {"bundle_id": null},
                       {"bundle_id": "a"}])",
     100},
    // Sums wrap around.
    {R"("priority_score": 9223372036854775807, "dependency": [{"bundle_id": "a",
        "dependency_score": 1}])",
     INT64_MIN},
    {R"("dependency": [{"bundle_id": "a", "dependency_score": 9223372036854775807},
                       {"bundle_id": "b", "dependency_score": 9223372036854775807}])",
     -2},
};

TEST_F(RecommendTest, ScoresACandidate) {
  applications.identifiers = {"com.example.host", "a", "b"};
  for (const auto& row : kScores) {
    const Candidate candidate(
        json(R"({"bundle_id": "x", "brick": "B", "sp_description": "D", "link": "L", )" +
             std::string(row.fields) + "}"));
    const auto record = buildApp(candidate, false, context());
    EXPECT_EQ(record->points(), row.points) << row.fields;
    EXPECT_EQ(record->brickURL(), row.brick) << row.fields;
    EXPECT_EQ(record->descr(), row.description) << row.fields;
    EXPECT_EQ(record->link(), "L") << row.fields;
  }
}

TEST_F(RecommendTest, CountsAnInAppCheckWhileNothingIsBought) {
  const struct {
    bool bought;
    Value purchases;
    DependencyOutcome outcome;
    bool purchasesRead;
  } rows[] = {
      {false, {}, DependencyOutcome::Holds, true},
      {false, Value::Array{"pro"}, DependencyOutcome::Purchases, true},
      {true, Value::Array{"pro"}, DependencyOutcome::PurchaseRecord, false},
  };
  applications.identifiers = {"com.example.host"};
  const Dependency dependency(json(R"({"bundle_id": "com.example.host", "in_app_check": 1})"));
  for (const auto& row : rows) {
    bought = row.bought;
    bool read = false;
    auto world = context();
    world.purchases = [&] { return read = true, row.purchases; };
    const std::string what = std::to_string(&row - rows);
    EXPECT_EQ(dependencyOutcome(dependency, world), row.outcome) << what;
    EXPECT_EQ(read, row.purchasesRead) << what;
  }
}

TEST_F(RecommendTest, AsksAnewForEveryEntryAndEveryBuild) {
  applications.identifiers = {"com.example.host"};
  int asked = 0;
  auto world = context();
  world.purchases = [&] { return ++asked % 2 ? Value() : Value(Value::Array{"pro"}); };
  const Candidate candidate(json(R"({"bundle_id": "x", "dependency": [
    {"bundle_id": "com.example.host", "in_app_check": 1},
    {"bundle_id": "com.example.host", "in_app_check": 1, "dependency_score": 1}]})"));
  EXPECT_EQ(buildApp(candidate, false, world)->points(), 100);
  EXPECT_EQ(asked, 2);
  applications.identifiers.clear();
  EXPECT_EQ(buildApp(candidate, false, world)->points(), 0);
}

} // namespace
} // namespace wrenvale::recommend
