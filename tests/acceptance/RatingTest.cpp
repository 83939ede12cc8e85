// Photo Tool's user answers the prompts for a rating; what of it is on disk when Photo Tool has
// quit.

#include <gtest/gtest.h>

#include "tests/acceptance/HostProcess.h"

namespace wrenvale::tests {
namespace {

constexpr const char* kPhotoTool = "com.example.phototool";

struct Record {
  Value::Array history;
  bool triggered = false;
};

std::string doing(const Home& home, const std::string& steps, const char* program = PHOTO_TOOL) {
  const auto run = home.run(program, {"--do", steps});
  EXPECT_EQ(run.status, 0) << run.errors;
  return run.output;
}

// The records as they ought to be, their dates taken over from those filed.
Value expected(const std::vector<Record>& records, const Value& filed) {
  Value::Array result;
  for (const auto& [history, triggered] : records) {
    const Value date = filed.at(result.size()).find("Date");
    EXPECT_TRUE(date.date());
    result.push_back(
        Value::Dictionary{{"History", history}, {"Triggered", triggered}, {"Date", date}});
  }
  return result;
}

TEST(Rating, SessionsAreOnRecord) {
  const struct {
    const char* steps;
    std::vector<Record> records;
    const char* status; // the last that Photo Tool's status bar told
  } rows[] = {
      {"ask-over-window,like,store,status,quit",
       {{{1, 3}, false}},
       "Ask Over This Window: asked · completion handler called: 1\n"},
      {"ask-over-window,like+quit", {{{1, 0}, false}}, ""},
      {"ask,dislike,contact,ask,status,quit",
       {{{2, 4}, true}},
       "Ask for a Rating: not asked · completion handler called: 1\n"},
      {"rate,like,store,rate,close,quit", {{{1, 3}, false}, {{0}, false}}, ""},
      {"ask-with-alert,alert-yes,quit", {{{3}, true}}, ""},
      {"export,export,export,close,export,status,quit",
       {{{0}, false}},
       "Ask on the Third Export: not asked · completion handler called: 1\n"},
  };
  for (const auto& row : rows) {
    const Home home;
    EXPECT_EQ(doing(home, row.steps), row.status) << row.steps;
    const Value filed = home.defaults(kPhotoTool).find("Version Ratings").find("1204");
    EXPECT_EQ(filed, expected(row.records, filed)) << row.steps;
  }
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
