#include "recommend/Eligibility.h"

#include "recommend/RecommenderDocument.h"
#include "tests/recommend/RecommendFixture.h"

namespace wrenvale::recommend {
namespace {

using Reason = Exclusion::Reason;

RecommenderDocument withStableVersions(const std::string& entries) {
  return RecommenderDocument(json(R"({"options": {"stable_versions": )" + entries + "}}"));
}

TEST(Eligibility, OpensTheGateForStableBuilds) {
  const struct {
    const char* entries;
    bool passes, polite;
  } rows[] = {
      {R"([{"bundle_id": "com.example.host", "build_number": 120}])", true, false},
      {R"([{"bundle_id": "com.example.host", "build_number": 121, "polite": false}])", true, true},
      {R"([{"bundle_id": "com.example.host", "build_number": 119, "polite": null}])", false, true},
      {R"([{"bundle_id": "com.example.host", "build_number": "120"}])", true, false},
      {R"([{"bundle_id": "com.example.host", "build_number": 1e99}])", true, false},
      {R"([{"bundle_id": "com.example.host", "build_number": [120]}])", false, false},
      {R"([{"bundle_id": "com.Example.host", "build_number": 120, "polite": 1}])", false, false},
      // The gate trims; politeness does not.
      {R"([{"bundle_id": " com.example.host\n", "build_number": 120, "polite": 1}])", true, false},
      // Each looks at the first entry that it recognises, and at no other.
      {R"([{"bundle_id": "com.example.host", "build_number": 1},
           {"bundle_id": "com.example.host", "build_number": 120, "polite": 1}])",
       false, false},
      {R"([{"bundle_id": "com.example.host ", "build_number": 120},
           {"bundle_id": "com.example.host", "build_number": 1, "polite": 1}])",
       true, true},
      // Entries that say nothing.
      {R"([null, 7, "com.example.host", [], {}, {"bundle_id": null}, {"bundle_id": ["x"]},
           {"bundle_id": "com.example.host", "build_number": 120}])",
       true, false},
      {R"([])", false, false},
      {R"({"x": {"bundle_id": "com.example.host", "build_number": 120}})", false, false},
  };
  const Host host{.bundleID = "com.example.host", .bundleVersion = 120};
  for (const auto& row : rows) {
    const auto document = withStableVersions(row.entries);
    EXPECT_EQ(checkBuildNumber(document, host), row.passes) << row.entries;
    EXPECT_EQ(isPolite(document, host), row.polite) << row.entries;
  }
}

TEST(Eligibility, ComparesBuildsAsSignedNumbers) {
  const auto document = withStableVersions(R"([{"bundle_id": "h", "build_number": -5}])");
  EXPECT_FALSE(checkBuildNumber(document, {.bundleID = "h", .bundleVersion = -4}));
  EXPECT_TRUE(checkBuildNumber(document, {.bundleID = "h", .bundleVersion = -5}));
  EXPECT_FALSE(checkBuildNumber(document, {.bundleID = std::nullopt, .bundleVersion = -5}));
}

TEST_F(RecommendTest, LeavesOutCandidates) {
  const struct {
    const char* candidate;
    std::optional<Reason> reason;
    std::string by;
    std::vector<std::string> questions;
  } rows[] = {
      {R"({"sp_name": "a"})", Reason::NoIdentifier, "", {}},
      {R"({"bundle_id": null})", Reason::NoIdentifier, "", {}},
      {R"({"bundle_id": "\tcom.example.host "})", Reason::HostItself, "", {}},
      {R"({"bundle_id": "Com.Example.Host"})", {}, "", {"Com.Example.Host"}},
      {R"({"bundle_id": " a\n", "exclude": ["b"]})", Reason::Installed, "", {"a"}},
      {R"({"bundle_id": "c", "exclude": ["d", "b", "a"]})",
       Reason::ExcludedBy,
       "b",
       {"c", "d", "b"}},
      {R"({"bundle_id": "c", "exclude": [" b"]})", {}, "", {"c", " b"}},
      {R"({"bundle_id": "c", "exclude": "b"})", {}, "", {"c"}},
      {R"({"bundle_id": "c", "exclude": [null, {}, ["b"], true, 7]})",
       Reason::ExcludedBy,
       "7",
       {"c", "7"}},
      {R"({"bundle_id": "a\u0000"})", {}, "", {std::string("a\0", 2)}},
      {R"({"bundle_id": 7})", Reason::Installed, "", {"7"}},
      {R"({"bundle_id": ""})", {}, "", {""}},
  };
  applications.identifiers = {"a", "b", "7"};
  for (const auto& row : rows) {
    applications.questions.clear();
    const auto world = context();
    const auto result =
        shouldExclude(Candidate(json(row.candidate)), world.host, world.isInstalled);
    ASSERT_EQ(result.has_value(), row.reason.has_value()) << row.candidate;
    if (result) {
      EXPECT_EQ(result->reason, *row.reason) << row.candidate;
      EXPECT_EQ(result->by, row.by) << row.candidate;
    }
    EXPECT_EQ(applications.questions, row.questions) << row.candidate;
  }
}

} // namespace
} // namespace wrenvale::recommend
