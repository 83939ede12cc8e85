// Hosts whose welcome window is due: what their users see is tested elsewhere, here that it does
// them no harm, whatever is missing and however they end.

#include <unistd.h>

#include <atomic>

#include <gmock/gmock.h>

#include "tests/acceptance/HostProcess.h"
#include "tests/acceptance/VendorServer.h"

namespace wrenvale::tests {
namespace {

namespace fs = std::filesystem;

constexpr const char* kHost = "com.example.plainhost";
constexpr const char* kPage = "/store/newsletter/index_US.html";

class Welcome : public testing::Test {
protected:
  /// Runs the host after an update whose window is owed.
  tests::Run run(const std::string& end, const std::string& time,
                 const std::map<std::string, std::string>& environment) {
    home_.setDefaults(kHost, {{"Recommender Last Version", 7}, {"Show Update Window", true}});
    auto run = home_.run(CALLING_HOST, {end, time}, environment);
    EXPECT_EQ(run.status, 0) << run.errors;
    return run;
  }
  bool isOwed() const { return home_.defaults(kHost).find("Show Update Window") == Value(true); }
  bool wasPageAskedFor() const {
    const auto requests = server_.requests();
    return std::any_of(requests.begin(), requests.end(),
                       [](const auto& request) { return request.path == kPage; });
  }

  const Home home_{};
  std::atomic<bool> shows_ = false; // the page, itself
  const VendorServer server_{[this](const auto& request, httplib::Response& response) {
    if (request.path != kPage) return response.set_content("[]", "application/json");
    response.set_content(shows_ ? "<script>Recommender.showWindow()</script>" : "<p>Page",
                         "text/html");
  }};
};

// Without an engine it is as if the page could not be fetched: the hidden window closes, and counts
// as delivered.
TEST_F(Welcome, WithoutAnEngineTheWindowIsOver) {
  const auto folder = home_.folder() / "library";
  fs::create_directories(folder / "wrenvale");
  fs::copy(WRENVALE_LIBRARY, folder);
  fs::copy(WRENVALE_NET_MODULE, folder / "wrenvale");
  std::map<std::string, std::string> rows = {{"LD_LIBRARY_PATH", folder},
                                             {"QTWEBENGINEPROCESS_PATH", folder / "missing"},
                                             {"QTWEBENGINE_RESOURCES_PATH", folder / "missing"}};
  if (geteuid() == 0) rows["QTWEBENGINE_DISABLE_SANDBOX"] = "0";
  for (const auto& variable : rows) {
    run("quit", "400", {variable});
    EXPECT_FALSE(isOwed()) << variable.first;
  }
  EXPECT_FALSE(wasPageAskedFor());
}

bool isRunning(const Home& home) {
  const auto variable = "HOME=" + home.folder().string() + '\0';
  const auto environments = fs::directory_iterator("/proc");
  return std::any_of(begin(environments), end(environments), [&](const auto& process) {
    return platform::contentsOf(process.path() / "environ").find(variable) != std::string::npos;
  });
}

// Early, in the middle of it, and when the page is there. Quitting closes windows that are shown.
TEST_F(Welcome, EndsWithItsHostAndLeavesNothing) {
  const auto temporary = home_.folder() / "tmp";
  fs::create_directories(temporary);
  for (const std::string end : {"quit", "exit", "close", "delete", "again"})
    for (const std::string time : {"0", "120", "250", "700", "shown"}) {
      SCOPED_TRACE(end + " after " + time);
      shows_ = time == "shown";
      const auto ended =
          run(end, time, {{"TMPDIR", temporary}, {"XDG_RUNTIME_DIR", home_.folder()}});
      // Its processes notice its end by themselves; one that has only just been started gives up
      // after 15 s.
      for (int i = 0; i < 1000 && isRunning(home_); ++i)
        usleep(20'000);
      EXPECT_FALSE(isRunning(home_));
      EXPECT_TRUE(fs::is_empty(temporary));
      EXPECT_TRUE(end != "exit" || isOwed());
      EXPECT_TRUE(end != "quit" || isOwed() != shows_);
      // Where it does not, the engine's threads use what exit() destroys, now and then.
      EXPECT_TRUE(end != "exit" || !shows_ || ended.output == "in order\n") << ended.output;
    }
  EXPECT_TRUE(wasPageAskedFor());
  std::vector<std::string> left;
  for (const auto& entry : fs::recursive_directory_iterator(home_.folder()))
    if (entry.is_regular_file()) left.push_back(entry.path().filename());
  EXPECT_THAT(left, testing::UnorderedElementsAre("defaults.plist", "defaults.plist.lock", "output",
                                                  "errors"));
}

} // namespace
} // namespace wrenvale::tests
