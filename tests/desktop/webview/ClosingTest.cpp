// The window and its page go at every moment, and take nothing with them.

#include <csignal>
#include <filesystem>
#include <fstream>

#include "WebViewFixture.h"

namespace wrenvale::platform {
namespace {

/// The processes that run pages: the engine starts them through a process of its own.
std::vector<pid_t> renderers() {
  std::map<pid_t, pid_t> parents; // of those that have not ended
  for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
    std::ifstream file(entry.path() / "stat");
    pid_t process = 0;
    pid_t parent = 0;
    std::string name;
    char state = 'Z';
    if (file >> process >> name >> state >> parent && state != 'Z') parents[process] = parent;
  }
  std::vector<pid_t> result;
  for (const auto& [process, parent] : parents)
    if (parents.contains(parent) && parents.at(parent) == getpid()) result.push_back(process);
  return result;
}

class ClosingTest : public WebViewTest {
protected:
  ClosingTest() {
    site_.page(
        "/",
        "<script>onload = () => { Recommender.act(); location = '/next' };"
        "for (let i = 0; i < 30; ++i) Recommender.log(i)</script><iframe src='/next'></iframe>");
    site_.page("/next", "<script>Recommender.done()</script>");
    site_.answer("/none", "");
  }
  static bool hasNoWindow() {
    return waitUntil([] { return !widget() && renderers().empty(); });
  }

  using Ways = std::vector<std::pair<const char*, std::function<void()>>>;
  const Ways ways_ = {{"close", [&] { window_->close(); }},
                      {"let go", [&] { window_.reset(); }},
                      {"close and let go", [&] { window_->close(), window_.reset(); }}};
  const Ways hostsWays_ = {{"close the widget", [] { widget()->close(); }},
                           {"hide the widget", [] { widget()->hide(); }},
                           {"delete the widget", [] { delete widget(); }},
                           {"delete the web view and close", [] {
                              delete widget()->findChild<QWidget*>("webView"), widget()->close();
                            }}};
};

// As the delegate does it from inside each of its calls.
TEST_F(ClosingTest, FromInsideAnyCall) {
  for (const auto& [way, go] : ways_)
    for (const std::string moment : {"go 5", "clear", "log,0", "act", "log,29", "done", "fail"}) {
      SCOPED_TRACE(way + (" at " + moment));
      std::ptrdiff_t calls = 0;
      onCall([&, go = go](const std::string& call) {
        if (!window_ || calls > 0 || !call.starts_with(moment)) return;
        calls = std::ssize(delegate_.calls);
        go();
      });
      load(moment == "fail" ? "/none" : "/");
      EXPECT_TRUE(waitUntil([&] { return calls > 0; }));
      waitUntil([] { return renderers().empty(); });
      EXPECT_LE(std::ssize(delegate_.calls), calls + delegate_.count("close"));
      window_.reset();
      EXPECT_TRUE(hasNoWindow());
    }
}

TEST_F(ClosingTest, AtAnyTimeOfLoading) {
  for (const auto& [way, go] : ways_)
    for (const int milliseconds : {0, 1, 5, 20, 60}) {
      load(milliseconds % 2 ? "/" : "/hang");
      if (milliseconds) waitUntil([] { return false; }, std::chrono::milliseconds(milliseconds));
      go();
      window_.reset();
      EXPECT_TRUE(hasNoWindow()) << way << " after " << milliseconds << " ms";
      EXPECT_FALSE(delegate_.has("fail")) << way << " after " << milliseconds << " ms";
    }
}

// Such a page keeps its own process busy, and the host's main thread from nothing.
TEST_F(ClosingTest, OfAPageThatNeverRests) {
  site_.script("/endless", [](auto& client) {
    client.send(
        "HTTP/1.1 200 OK\r\nContent-Type: text/html\r\n\r\n<script>Recommender.act()</script>");
    while (client.send("<p>" + std::string(60'000, 'x')))
      ;
  });
  site_.page("/back", "<script>location.replace('/')</script>");
  for (const char* restless :
       {"for (;;) Recommender.log(1)", "for (;;) prompt('x')", "for (;;);",
        "for (;;) console.log('x'.repeat(10000))", "location.replace('/back')", "endless"}) {
    site_.page("/", "<script>Recommender.act();" + std::string(restless) + "</script>");
    load(restless == std::string("endless") ? "/endless" : "/");
    ASSERT_TRUE(waitFor("act")) << restless;
    int turns = 0;
    EXPECT_TRUE(waitUntil([&] { return ++turns > 50; }, std::chrono::seconds(2))) << restless;
    EXPECT_FALSE(delegate_.has("fail")) << restless;
    window_->close();
    window_.reset();
    EXPECT_TRUE(hasNoWindow()) << restless;
  }
}

// The host's own code may close the widget, or a person.
TEST_F(ClosingTest, ByAnyoneTakesItsSheetsAlong) {
  for (const auto* ways : {&ways_, &hostsWays_})
    for (const auto& [way, go] : *ways) {
      SCOPED_TRACE(way);
      load("/");
      window_->makeKeyAndOrderFront();
      ASSERT_TRUE(waitFor("done"));
      bool answered = false;
      window_->beginSheet(
          {.title = "", .messageText = "Well?", .informativeText = "", .defaultButton = "Ok"},
          [&](int) { answered = true; });
      ASSERT_NE(QApplication::activeModalWidget(), nullptr);
      go();
      if (window_) {
        EXPECT_TRUE(waitFor("close"));
        window_->setTitle("Late");
        window_->setFrame({}, true);
        window_->makeKeyAndOrderFront();
        window_->close();
        EXPECT_FALSE(window_->isVisible());
      }
      EXPECT_EQ(delegate_.count("close"), way == std::string("let go") ? 0 : 1);
      window_.reset();
      EXPECT_TRUE(hasNoWindow());
      EXPECT_TRUE(waitUntil([] { return !QApplication::activeModalWidget(); }));
      EXPECT_FALSE(answered && ways == &ways_);
    }
}

TEST_F(ClosingTest, APageWhoseProcessEndsHasFailed) {
  site_.page("/", "<script>Recommender.done()</script>");
  load("/");
  ASSERT_TRUE(waitFor("done"));
  ASSERT_FALSE(renderers().empty());
  for (const auto process : renderers())
    kill(process, SIGKILL);
  EXPECT_TRUE(waitFor("fail"));
  EXPECT_EQ(delegate_.count("fail"), 1);
  EXPECT_EQ(delegate_.advice, "") << "for the connection is not to blame";
  EXPECT_FALSE(hasScriptObject());
}

} // namespace
} // namespace wrenvale::platform
