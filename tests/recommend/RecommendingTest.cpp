#include "recommend/Ranking.h"

#include "recommend/Eligibility.h"
#include "recommend/KVXAppRecommendation.h"
#include "recommend/RecommenderDocument.h"
#include "recommend/Scoring.h"
#include "tests/recommend/RecommendFixture.h"

namespace wrenvale::recommend {
namespace {

// A document with this as its "apps".
std::string withApps(const std::string& apps) {
  return R"({"options": {"stable_versions": [{"bundle_id": "host", "build_number": 120}]},
             "apps": )" +
         apps + "}";
}

// The identifiers of the list in order, or "closed".
std::string outcome(const std::string& document, const Context& context) {
  const auto list = recommendations(RecommenderDocument(json(document)), context);
  if (!list) return "closed";
  std::string result;
  for (const auto& record : *list)
    result += *record->bundleID();
  return result;
}

TEST_F(RecommendTest, MakesNothingOfABadDocument) {
  const std::pair<std::string, const char*> rows[] = {
      {"{}", "closed"},
      {R"(["options", "apps"])", "closed"},
      {R"({"options": null, "apps": [{"bundle_id": "a"}]})", "closed"},
      {withApps(R"({"0": {"bundle_id": "a"}})"), ""},
      {withApps(R"([null, true, -2.5, "a", [{"bundle_id": "a"}], {}, {"bundle_id": "b"}])"), "b"},
      {withApps(R"([{"bundle_id": "a", "group": null, "exclude": null, "dependency": null}])"),
       "a"},
      {withApps(R"([{"bundle_id": "a", "group": ["g"], "priority_score": 3},
                    {"bundle_id": "b", "group": ["g"], "priority_score": 2},
                    {"bundle_id": "c", "group": 5, "priority_score": -9223372036854775808},
                    {"bundle_id": "d", "group": 5, "priority_score": 18446744073709551615}])"),
       "dab"},
  };
  for (const auto& [document, expected] : rows)
    EXPECT_EQ(outcome(document, context()), expected) << document;
}

TEST_F(RecommendTest, FollowsCandidatesFromTheDocumentToTheList) {
  const auto document = withApps(R"([
    {"bundle_id": "a", "priority_score": 1},
    {"bundle_id": "b", "priority_score": 120, "group": "g"},
    {"bundle_id": "c", "priority_score": 100, "group": "g",
     "dependency": [{"bundle_id": "i"}, {"bundle_id": "j"}]},
    {"bundle_id": "host"}, {"bundle_id": "i"}, {"sp_name": "nameless"},
    {"bundle_id": "d", "priority_score": 500, "exclude": ["i"]},
    {"bundle_id": "e", "priority_score": -1}])");
  applications.identifiers = {"i"};
  EXPECT_EQ(outcome(document, context()), "cae");
  applications.identifiers.clear(); // asked anew: "i" may be recommended now, and "d" too
  EXPECT_EQ(outcome(document, context()), "dbaie");
}

} // namespace
} // namespace wrenvale::recommend
