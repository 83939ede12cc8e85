// Photo Tool's user answers the prompts for a rating; what of it is on disk when Photo Tool has
// quit.

#include <gtest/gtest.h>

#include "tests/acceptance/HostProcess.h"

namespace wrenvale::tests {
namespace {

using Clock = std::chrono::system_clock;
using namespace std::chrono_literals;

constexpr const char* kPhotoTool = "com.example.phototool";

struct Record {
  Value::Array history;
  bool triggered = false;
};

struct Session {
  const char* steps;
  std::vector<Record> records;
  std::string status;           // the last that Photo Tool's status bar told
  std::string rateVersion = ""; // "Rate Version"
  std::int64_t counter = 0;     // of "Version Counters"
};

std::string doing(const Home& home, const std::string& steps, const char* program = PHOTO_TOOL) {
  const auto run = home.run(program, {"--do", steps});
  EXPECT_EQ(run.status, 0) << run.errors;
  return run.output;
}

// The records as they ought to be, their dates taken over from those filed.
Value expected(const std::vector<Record>& records, const Value& filed) {
  Value::Array result;
  for (const auto& [history, triggered] : records)
    result.push_back(Value::Dictionary{{"History", history},
                                       {"Triggered", triggered},
                                       {"Date", filed.at(result.size()).find("Date")}});
  return result.empty() ? Value() : Value(result);
}

// A file holds dates in whole seconds.
void expectDatesWithin(const Value& filed, Clock::time_point begin, Clock::time_point end) {
  for (std::size_t i = 0; i < filed.size(); ++i) {
    const Value value = filed.at(i).find("Date");
    ASSERT_TRUE(value.date()) << "record " << i;
    EXPECT_GE(*value.date(), begin - 1s) << "record " << i;
    EXPECT_LE(*value.date(), end + 1s) << "record " << i;
  }
}

class RatingSession : public testing::TestWithParam<Session> {};

TEST_P(RatingSession, IsOnRecord) {
  const auto& session = GetParam();
  const Home home;
  const auto begin = Clock::now();
  EXPECT_EQ(doing(home, session.steps), session.status.empty() ? "" : session.status + "\n");
  const auto defaults = home.defaults(kPhotoTool);
  const Value filed = defaults.find("Version Ratings").find("1204");
  EXPECT_EQ(filed, expected(session.records, filed));
  expectDatesWithin(filed, begin, Clock::now());
  EXPECT_EQ(defaults.find("Rate Version"),
            session.rateVersion.empty() ? Value() : Value(session.rateVersion));
  EXPECT_EQ(defaults.find("Version Counters").find("1204"),
            session.counter == 0 ? Value() : Value(session.counter));
}

void PrintTo(const Session& session, std::ostream* stream) {
  *stream << session.steps;
}

INSTANTIATE_TEST_SUITE_P(
    OverItsWindow, RatingSession,
    testing::Values(Session{"ask-over-window,like,store,status,quit",
                            {{{1, 3}, false}},
                            "Ask Over This Window: asked · completion handler called: 1"},
                    Session{"ask-over-window,close,ask,status,quit",
                            {{{0}, false}},
                            "Ask for a Rating: not asked · completion handler called: 1"},
                    Session{"ask-over-window,dislike+like,contact,status,quit",
                            {{{2, 4}, false}},
                            "Ask Over This Window: asked · completion handler called: 1"},
                    Session{"ask-over-window,like+quit", {{{1, 0}, false}}, ""}));

INSTANTIATE_TEST_SUITE_P(
    FreeStanding, RatingSession,
    testing::Values(Session{"ask,dislike,contact,status,quit",
                            {{{2, 4}, true}},
                            "Ask for a Rating: asked · completion handler called: 1"},
                    Session{"ask,like+dislike,store,quit", {{{1, 3}, true}}, ""},
                    Session{"ask,dislike+close,status,quit",
                            {{{2, 0}, true}},
                            "Ask for a Rating: asked · completion handler called: 1"},
                    Session{"ask,quit", {{{0}, true}}, ""},
                    Session{"rate,like,store,rate,close,quit", {{{1, 3}, false}, {{0}, false}}, ""},
                    Session{
                        "rate,ask,close,status,quit", {{{0}, true}}, "Ask for a Rating: asked"}));

INSTANTIATE_TEST_SUITE_P(
    ByAlert, RatingSession,
    testing::Values(Session{"ask-with-alert,alert-yes,quit", {{{3}, true}}, "", "1204"},
                    Session{"ask-with-alert,alert-no,ask-with-alert,status,quit",
                            {{{0}, true}},
                            "Ask With an Alert: not asked",
                            "1204"}));

INSTANTIATE_TEST_SUITE_P(
    Counted, RatingSession,
    testing::Values(
        Session{"export,export,status,quit", {}, "Ask on the Third Export: not asked", "", 2},
        Session{"export,export,export,close,export,status,quit",
                {{{0}, false}},
                "Ask on the Third Export: not asked · completion handler called: 1",
                "",
                4},
        Session{"rate,close,export,export,export,status,quit",
                {{{0}, false}},
                "Ask on the Third Export: not asked",
                "",
                3}));

TEST(Rating, CallsAreCountedAcrossRuns) {
  const Home home;
  doing(home, "export,quit");
  doing(home, "export,quit");
  doing(home, "export,dislike,contact,quit");
  const auto defaults = home.defaults(kPhotoTool);
  EXPECT_EQ(defaults.find("Version Counters"), Value(Value::Dictionary{{"1204", 3}}));
  EXPECT_EQ(defaults.find("Version Ratings").find("1204").at(0).find("History"),
            Value(Value::Array{2, 4}));
}

TEST(Rating, AnUpdateAsksAgainUnlessTheStoreWasVisited) {
  const std::pair<const char*, std::vector<Record>> rows[] = {
      {"ask,like,close,quit", {{{0}, true}}},
      {"ask,like,store,quit", {{{5}, false}}},
  };
  for (const auto& [before, records] : rows) {
    SCOPED_TRACE(before);
    const Home home;
    doing(home, before);
    const Value earlier = home.defaults(kPhotoTool).find("Version Ratings").find("1204");
    doing(home, "ask,quit", PHOTO_TOOL_NEXT);
    const Value ratings = home.defaults(kPhotoTool).find("Version Ratings");
    EXPECT_EQ(ratings.find("1205"), expected(records, ratings.find("1205")));
    EXPECT_EQ(ratings.find("1204"), earlier);
  }
}

} // namespace
} // namespace wrenvale::tests
