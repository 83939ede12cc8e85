#include "recommend/Eligibility.h"

#include "recommend/RecommenderDocument.h"
#include "tests/recommend/RecommendFixture.h"

namespace wrenvale::recommend {
namespace {

using Reason = Exclusion::Reason;

TEST(Eligibility, OpensTheGateForStableBuilds) {
  const struct {
    std::string entries;
    bool passes, polite;
  } rows[] = {
      {R"([{"bundle_id": "h", "build_number": -5}])", true, false},
      {R"([{"bundle_id": "h", "build_number": -6, "polite": null}])", false, true},
      {R"([{"bundle_id": "h", "build_number": "-4", "polite": false}])", true, true},
      {R"([{"bundle_id": "h", "build_number": 1e99}])", true, false},
      {R"([{"bundle_id": "H", "build_number": 1, "polite": 1}])", false, false},
      // The gate trims; politeness does not.
      {R"([{"bundle_id": " h\n", "build_number": 1, "polite": 1}])", true, false},
      // Each looks at the first entry that it recognises, and at no other.
      {R"([{"bundle_id": "h", "build_number": -9}, {"bundle_id": "h", "polite": 1}])", false,
       false},
      {R"([{"bundle_id": "h ", "build_number": 1}, {"bundle_id": "h", "polite": 1}])", true, true},
      // Entries that say nothing.
      {R"([null, "h", ["h"], {}, {"bundle_id": null}, {"bundle_id": "h"}])", true, false},
      {R"({"bundle_id": "h", "x": {"bundle_id": "h"}})", false, false},
  };
  for (const auto& [entries, passes, polite] : rows) {
    const RecommenderDocument document(
        json(R"({"options": {"stable_versions": )" + entries + "}}"));
    const Host host{.bundleID = "h", .bundleVersion = -5};
    EXPECT_EQ(checkBuildNumber(document, host), passes) << entries;
    EXPECT_EQ(isPolite(document, host), polite) << entries;
    EXPECT_FALSE(checkBuildNumber(document, {.bundleID = {}, .bundleVersion = -5})) << entries;
  }
}

TEST_F(RecommendTest, LeavesOutCandidates) {
  const struct {
    const char* candidate;
    std::optional<Reason> reason;
    std::string by;
    std::vector<std::string> questions;
  } rows[] = {
      {R"(["bundle_id"])", Reason::NoIdentifier, "", {}},
      {R"({"bundle_id": null})", Reason::NoIdentifier, "", {}},
      {R"({"bundle_id": "\thost "})", Reason::HostItself, "", {}},
      {R"({"bundle_id": "Host"})", {}, "", {"Host"}},
      {R"({"bundle_id": " a\n", "exclude": ["b"]})", Reason::Installed, "", {"a"}},
      {R"({"bundle_id": "c", "exclude": ["d", "b", "a"]})",
       Reason::ExcludedBy,
       "b",
       {"c", "d", "b"}},
      {R"({"bundle_id": "c", "exclude": [" b", null, ["b"]]})", {}, "", {"c", " b"}},
      {R"({"bundle_id": "c", "exclude": {"b": "b"}})", {}, "", {"c"}},
      {R"({"bundle_id": "c", "exclude": [7]})", Reason::ExcludedBy, "7", {"c", "7"}},
      {R"({"bundle_id": "a\u0000"})", {}, "", {std::string("a\0", 2)}},
  };
  applications.identifiers = {"a", "b", "7"};
  for (const auto& row : rows) {
    applications.questions.clear();
    const auto world = context();
    const auto result =
        shouldExclude(Candidate(json(row.candidate)), world.host, world.isInstalled);
    EXPECT_EQ(result ? std::optional(result->reason) : std::nullopt, row.reason) << row.candidate;
    EXPECT_EQ(result ? result->by : "", row.by) << row.candidate;
    EXPECT_EQ(applications.questions, row.questions) << row.candidate;
  }
}

} // namespace
} // namespace wrenvale::recommend
