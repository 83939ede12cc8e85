// The window and its page go at every moment, and take nothing with them.

#include <QMessageBox>

#include "Processes.h"
#include "WebViewFixture.h"

namespace wrenvale::platform {
namespace {

using testing::AnyOf;

constexpr const char* kBusyPage =
    "<script>onload = () => { Recommender.act(); location = '/next' }; for (let i = 0; i < 30; ++i)"
    " Recommender.log(i)</script><iframe src='/next'></iframe>";

class ClosingTest : public WebViewTest {
protected:
  ClosingTest() {
    site_.page("/", kBusyPage);
    site_.page("/next", "<script>Recommender.done()</script>");
    site_.script("/hang", [](auto& client) { client.hang(); });
  }
  static bool hasNoWindow() {
    return waitUntil([] { return !widget() && renderers().empty(); });
  }
};

const std::pair<const char*, std::function<void(std::unique_ptr<RecommenderWindow>&)>> kWays[] = {
    {"close", [](auto& window) { window->close(); }},
    {"let go", [](auto& window) { window.reset(); }},
    {"close and let go", [](auto& window) { window->close(), window.reset(); }},
};

// As the delegate does it from inside each of its calls.
TEST_F(ClosingTest, FromInsideAnyCall) {
  const struct {
    const char* call;
    const char* path;
  } moments[] = {{"go 5", "/"},   {"clear", "/"}, {"log,0", "/"},   {"act", "/"},
                 {"log,29", "/"}, {"done", "/"},  {"fail", "/none"}};
  for (const auto& [way, go] : kWays)
    for (const auto& [moment, path] : moments) {
      SCOPED_TRACE(std::string(way) + " at " + moment + " of " + path);
      std::size_t calls = 0;
      const auto act = [&, moment = std::string_view(moment), go = go] {
        if (!window_ || calls > 0 || !delegate_.calls.back().starts_with(moment)) return;
        calls = delegate_.calls.size();
        go(window_);
      };
      delegate_.onClear = [&] {
        publish();
        act();
      };
      delegate_.onInvoke = [&](std::string_view) { return act(), Value(); };
      delegate_.onDecide = [&](const NavigationAction&) { return act(), PolicyDecision::kUse; };
      delegate_.onFail = act;
      site_.answer("/none", "");
      load(path, std::chrono::seconds(1));
      EXPECT_TRUE(waitUntil([&] { return calls > 0; }));
      waitUntil([] { return renderers().empty(); });
      const auto after = delegate_.calls.size() - calls;
      EXPECT_LE(after, std::string_view(way).starts_with("close") ? 1U : 0U);
      window_.reset();
      EXPECT_TRUE(hasNoWindow());
    }
}

TEST_F(ClosingTest, AtAnyTimeOfLoading) {
  for (const auto& [way, go] : kWays)
    for (const int milliseconds : {0, 1, 5, 20, 60}) {
      load(milliseconds % 2 ? "/" : "/hang");
      if (milliseconds) waitUntil([] { return false; }, std::chrono::milliseconds(milliseconds));
      go(window_);
      window_.reset();
      EXPECT_TRUE(hasNoWindow()) << way << " after " << milliseconds << " ms";
      EXPECT_FALSE(delegate_.has("fail")) << way << " after " << milliseconds << " ms";
    }
}

// Such a page keeps its own process busy, and the host's main thread from nothing.
TEST_F(ClosingTest, OfAPageThatNeverRests) {
  const struct {
    const char* script;
    bool calls;
  } rows[] = {{"for (;;) Recommender.log(1)", true},
              {"for (;;) prompt('x')", false},
              {"for (;;) console.log('x'.repeat(10000))", false},
              {"for (;;);", false}};
  for (const auto& row : rows) {
    site_.page("/", "<script>Recommender.act();" + std::string(row.script) + "</script>");
    load("/");
    ASSERT_TRUE(waitFor("act")) << row.script;
    const auto before = delegate_.calls.size();
    QElapsedTimer time;
    time.start();
    int turns = 0;
    EXPECT_TRUE(waitUntil([&] { return ++turns > 20; })) << row.script;
    EXPECT_LT(time.elapsed(), 2000) << row.script;
    EXPECT_EQ(delegate_.calls.size() > before + 20, row.calls) << row.script;
    window_->close();
    window_.reset();
    EXPECT_TRUE(hasNoWindow()) << row.script;
  }
}

// Nor does one whose text, or whose way, has no end.
TEST_F(ClosingTest, OfAPageThatNeverEnds) {
  site_.script("/endless", [](auto& client) {
    client.send(
        "HTTP/1.1 200 OK\r\nContent-Type: text/html\r\n\r\n<script>Recommender.act()</script>");
    while (client.send("<p>" + std::string(60'000, 'x')))
      ;
  });
  site_.page("/round", "<script>Recommender.act(); location.replace('/about')</script>");
  site_.page("/about", "<script>location.replace('/round')</script>");
  for (const char* path : {"/endless", "/round"}) {
    load(path);
    ASSERT_TRUE(waitFor("act")) << path;
    QElapsedTimer time;
    time.start();
    int turns = 0;
    EXPECT_TRUE(waitUntil([&] { return ++turns > 100; })) << path;
    EXPECT_LT(time.elapsed(), 4000) << path;
    EXPECT_FALSE(delegate_.has("fail")) << path;
    window_.reset();
    EXPECT_TRUE(hasNoWindow()) << path;
  }
}

TEST_F(ClosingTest, TakesItsSheetsAlong) {
  for (const auto& [way, go] : kWays) {
    load("/hang");
    window_->makeKeyAndOrderFront();
    bool answered = false;
    window_->beginSheet({.title = "Photo Tool",
                         .messageText = "Well?",
                         .informativeText = {},
                         .defaultButton = "Ok"},
                        [&](int) { answered = true; });
    ASSERT_NE(QApplication::activeModalWidget(), nullptr);
    go(window_);
    window_.reset();
    EXPECT_TRUE(hasNoWindow()) << way;
    EXPECT_TRUE(waitUntil([] { return !QApplication::activeModalWidget(); })) << way;
    EXPECT_FALSE(answered) << way;
  }
}

TEST_F(ClosingTest, ByTheHostCountsAsClosed) {
  const std::pair<const char*, void (*)(QWidget*)> ways[] = {
      {"close", [](QWidget* window) { window->close(); }},
      {"hide", [](QWidget* window) { window->hide(); }},
      {"delete", [](QWidget* window) { delete window; }},
      {"delete the web view and close",
       [](QWidget* window) { delete window->findChild<QWidget*>("webView"), window->close(); }},
  };
  for (const auto& [way, go] : ways) {
    load("/");
    window_->makeKeyAndOrderFront();
    ASSERT_TRUE(waitFor("done")) << way;
    go(widget());
    EXPECT_TRUE(waitFor("close")) << way;
    window_->setTitle("Late");
    window_->setFrame({}, true);
    window_->makeKeyAndOrderFront();
    window_->close();
    EXPECT_FALSE(window_->isVisible()) << way;
    EXPECT_EQ(std::count(delegate_.calls.begin(), delegate_.calls.end(), "close"), 1) << way;
    window_.reset();
    EXPECT_TRUE(hasNoWindow()) << way;
  }
}

} // namespace
} // namespace wrenvale::platform
