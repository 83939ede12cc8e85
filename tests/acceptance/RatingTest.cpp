// Photo Tool's user answers the prompts for a rating; what of it is on disk when Photo Tool has
// quit.

#include <gtest/gtest.h>

#include "tests/acceptance/HostProcess.h"

namespace wrenvale::tests {
namespace {

constexpr const char* kPhotoTool = "com.example.phototool";

std::string doing(const Home& home, const std::string& steps, const char* program = PHOTO_TOOL) {
  const auto run = home.run(program, {"--do", steps});
  EXPECT_EQ(run.status, 0) << run.errors;
  return run.output;
}

// The records of a build: the history of each, and a "!" when its prompt was triggered.
std::string filed(const Home& home, const char* build) {
  std::string shown;
  const auto records = home.defaults(kPhotoTool).find("Version Ratings").find(build);
  for (std::size_t i = 0; i < records.size(); ++i) {
    const auto record = records.at(i);
    const auto history = record.find("History");
    for (std::size_t step = 0; step < history.size(); ++step)
      shown += std::to_string(integerValue(history.at(step)));
    shown += record.find("Triggered") == Value(true) ? "! " : " ";
    const auto date = record.find("Date");
    EXPECT_TRUE(date.date());
  }
  return shown;
}

TEST(Rating, SessionsAreOnRecord) {
  const struct {
    const char* steps;
    const char* filed;
    const char* status; // the last that Photo Tool's status bar told
  } rows[] = {
      {"ask-over-window,like,store,status,quit", "13 ",
       "Ask Over This Window: asked · completion handler called: 1\n"},
      {"ask-over-window,like+quit", "10 ", ""},
      {"ask,dislike,contact,ask,status,quit", "24! ",
       "Ask for a Rating: not asked · completion handler called: 1\n"},
      {"rate,like,store,rate,close,quit", "13 0 ", ""},
      {"ask-with-alert,alert-yes,quit", "3! ", ""},
      {"export,export,export,close,export,status,quit", "0 ",
       "Ask on the Third Export: not asked · completion handler called: 1\n"},
  };
  for (const auto& row : rows) {
    const Home home;
    EXPECT_EQ(doing(home, row.steps), row.status) << row.steps;
    EXPECT_EQ(filed(home, "1204"), row.filed) << row.steps;
  }
}

TEST(Rating, AnUpdateAsksAgainUnlessTheStoreWasVisited) {
  const char* const rows[][3] = {{"ask,like,close,quit", "10! ", "0! "},
                                 {"ask,like,store,quit", "13! ", "5 "}};
  for (const auto& [before, earlier, now] : rows) {
    const Home home;
    doing(home, before);
    doing(home, "ask,quit", PHOTO_TOOL_NEXT);
    EXPECT_EQ(filed(home, "1204"), earlier) << before;
    EXPECT_EQ(filed(home, "1205"), now) << before;
  }
}

} // namespace
} // namespace wrenvale::tests
