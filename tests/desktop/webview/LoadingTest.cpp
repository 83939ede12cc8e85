// What counts as a page, and what as a failure to fetch one.

#include "WebViewFixture.h"

namespace wrenvale::platform {
namespace {

using Connection = LoopbackServer::Connection;

constexpr const char* kScript = "<script>Recommender.done()</script>";

class LoadingTest : public WebViewTest {
protected:
  long failures() const {
    return std::count(delegate_.calls.begin(), delegate_.calls.end(), "fail");
  }
  bool hasBegun() const { return delegate_.has("clear " + site_.url("/")); }
};

std::string scriptPage(const char* status, const char* headers = "") {
  return answerWith(kScript, status, std::string(Site::kHTML) + headers);
}

TEST_F(LoadingTest, APageIsWhateverBegins) {
  const struct {
    const char* what;
    std::string answer;
    bool isPage;
  } rows[] = {
      {"found", scriptPage("200 OK"), true},
      {"not found, with a page", scriptPage("404 Not Found"), true},
      {"an error, with a page", scriptPage("500 Internal Server Error"), true},
      {"an error without a word", answerWith("", "500 Internal Server Error"), true},
      {"for people with a name only",
       scriptPage("401 Unauthorized", "WWW-Authenticate: Basic realm=\"x\"\r\n"), true},
      {"nothing in it", answerWith("", "200 OK", Site::kHTML), true},
      {"plain text", answerWith("text", "200 OK", "Content-Type: text/plain\r\n"), true},
      {"forever elsewhere", answerWith("", "302 Found", "Location: /page\r\n"), false},
      {"no content", "HTTP/1.1 204 No Content\r\n\r\n", false},
      {"a download", answerWith("PK", "200 OK", "Content-Type: application/zip\r\n"), false},
      {"a page to save", scriptPage("200 OK", "Content-Disposition: attachment\r\n"), false},
      {"no answer", "", false},
      {"no HTTP", "\x01\x02\x03\r\n\r\n", false},
      {"to a file", answerWith("", "302 Found", "Location: file:///etc/hostname\r\n"), false},
      {"to another program", answerWith("", "302 Found", "Location: mailto:a@b.example\r\n"),
       false},
  };
  for (const auto& row : rows) {
    site_.answer("/page", row.answer);
    const auto before = site_.heads("/page").size();
    load("/page");
    EXPECT_TRUE(waitUntil([&] { return failures() > 0 || hasBegun(); })) << row.what;
    waitUntil([] { return false; }, std::chrono::milliseconds(50)); // for what else may come
    EXPECT_EQ(failures(), row.isPage ? 0 : 1) << row.what;
    EXPECT_EQ(hasBegun(), row.isPage) << row.what;
    if (row.isPage) {
      EXPECT_EQ(site_.heads("/page").size() - before, 1U) << row.what << ", asked for once";
    }
  }
}

TEST_F(LoadingTest, AddressesThatLeadNowhereFail) {
  const std::string closed = [] { return LoopbackServer(std::string()).url(); }();
  for (const auto& url : {closed, std::string("file:///etc/hostname"), std::string("nonsense"),
                          std::string(), std::string("qrc:/x"), std::string("chrome://gpu")}) {
    delegate_.calls.clear();
    window_ = windows().makeRecommenderWindow(delegate_);
    window_->loadRequest({.url = url, .applicationName = {}});
    EXPECT_TRUE(waitFor("fail")) << url;
    EXPECT_EQ(failures(), 1) << url;
    EXPECT_THAT(delegate_.advice, testing::StartsWith("Check the connection")) << url;
    EXPECT_FALSE(hasScriptObject()) << url;
  }
}

TEST_F(LoadingTest, GivesUpAServerThatDoesNotAnswer) {
  site_.script("/", [](Connection& client) { client.hang(); });
  load("/", std::chrono::seconds(1));
  EXPECT_TRUE(waitFor("fail"));
  EXPECT_EQ(failures(), 1);
}

// Wherever the page's scripts lead, as it begins or later.
TEST_F(LoadingTest, APageMayLeadNowhere) {
  site_.script("/hang", [](Connection& client) { client.hang(); });
  site_.answer("/to-hang", answerWith("", "302 Found", "Location: /hang\r\n"));
  for (const char* page :
       {"<script>location = '/hang'</script>", "<meta http-equiv=refresh content='0;url=/hang'>",
        "<script>setTimeout(() => location.replace('/to-hang'), 100)</script>",
        "<script>location = 'http://127.0.0.1:1/'</script>"}) {
    site_.page("/", page);
    load("/", std::chrono::seconds(1));
    EXPECT_TRUE(waitUntil([&] { return failures() > 0; }, std::chrono::seconds(5))) << page;
    EXPECT_EQ(failures(), 1) << page;
  }
}

// What a frame in the page shows, or does not, is of no weight.
TEST_F(LoadingTest, FramesMayFail) {
  site_.answer("/none", "");
  site_.answer("/nothing", "HTTP/1.1 204 No Content\r\n\r\n");
  site_.answer("/zip", answerWith("PK", "200 OK", "Content-Type: application/zip\r\n"));
  site_.script("/hang", [](Connection& client) { client.hang(); });
  site_.page("/",
             "<iframe src=/none></iframe><iframe src=/nothing></iframe><iframe src=/zip></iframe>"
             "<iframe src=/hang></iframe><iframe src='http://127.0.0.1:1/'></iframe>"
             "<script>setTimeout(() => Recommender.done(), 1300)</script>");
  load("/", std::chrono::seconds(1));
  EXPECT_TRUE(waitFor("done"));
  EXPECT_EQ(failures(), 0);
}

// A page that has begun is there, however slow the rest of it is.
TEST_F(LoadingTest, WaitsForAPageThatHasBegun) {
  site_.script("/", [](Connection& client) {
    client.send("HTTP/1.1 200 OK\r\nContent-Type: text/html\r\n\r\n<title>Slow</title>");
    client.send(kScript + std::string(5000, ' '));
    client.hang();
  });
  load("/", std::chrono::seconds(1));
  EXPECT_TRUE(waitFor("done"));
  EXPECT_FALSE(waitUntil([&] { return failures() > 0; }, std::chrono::milliseconds(1200)));
}

TEST_F(LoadingTest, APageMayFailToGoOn) {
  site_.page("/", "<script>setTimeout(() => location = 'http://127.0.0.1:1/')</script>");
  load("/");
  EXPECT_TRUE(waitFor("fail"));
  EXPECT_TRUE(hasBegun());
  for (const char* nothing :
       {"HTTP/1.1 204 No Content\r\n\r\n", "HTTP/1.1 200 OK\r\nContent-Type: x/y\r\n\r\n"}) {
    site_.answer("/nothing", nothing);
    site_.page("/", "<script>onload = () => { location = '/nothing';"
                    " setTimeout(() => Recommender.done(), 200) }</script>");
    load("/");
    EXPECT_TRUE(waitFor("done")) << nothing;
    EXPECT_EQ(failures(), 0) << nothing;
  }
}

// That is how a page tells the newsletter window, which is there before it, from the welcome
// window.
TEST_F(LoadingTest, APageKnowsWhetherItsWindowCanBeSeen) {
  if (QGuiApplication::platformName() == "offscreen") GTEST_SKIP() << "no window has a size there";
  site_.page("/", "<script>Recommender.log(outerWidth > 0); Recommender.done()</script>");
  for (const char* isShown : {"false", "true"}) {
    load("/");
    if (isShown == std::string("true")) window_->makeKeyAndOrderFront();
    ASSERT_TRUE(waitFor("done"));
    EXPECT_THAT(told(), testing::ElementsAre(isShown));
  }
}

TEST_F(LoadingTest, IsNobodyElsesAndLeavesNothing) {
  site_.answer("/", scriptPage("200 OK", "Set-Cookie: a=b\r\nCache-Control: max-age=99999\r\n"));
  for (int i = 0; i < 2; ++i) {
    load("/");
    ASSERT_TRUE(waitFor("done"));
  }
  const auto heads = site_.heads("/");
  ASSERT_EQ(heads.size(), 2U) << "not from a cache";
  EXPECT_THAT(heads, testing::Each(testing::HasSubstr(" qtwebengine/")));
  EXPECT_THAT(heads, testing::Each(testing::HasSubstr(" photo%20tool/120 (null)\r\n")));
  EXPECT_THAT(heads, testing::Each(testing::Not(testing::HasSubstr("cookie:"))));
  ASSERT_TRUE(run(R"(
    document.cookie = 'c=d'; localStorage.x = 1; tell(document.cookie, localStorage.x);
    tell(typeof navigator.plugins.length == 'number' && navigator.plugins.length);)"));
  EXPECT_THAT(told(), testing::ElementsAre("c=d", "1", "0"));
  ASSERT_TRUE(run("tell(document.cookie, typeof localStorage.x)"));
  EXPECT_THAT(told(), testing::ElementsAre("", "undefined"));
}

} // namespace
} // namespace wrenvale::platform
