// What counts as a page, and what as a failure to fetch one.

#include "WebViewFixture.h"

namespace wrenvale::platform {
namespace {

using namespace std::string_literals;

constexpr const char* kScript = "<script>Recommender.done()</script>";
constexpr const char* kNoContent = "HTTP/1.1 204 No Content\r\n\r\n";
constexpr const char* kDownload = "HTTP/1.1 200 OK\r\nContent-Type: application/zip\r\n\r\nPK";

class LoadingTest : public WebViewTest {
protected:
  LoadingTest() {
    site_.answer("/none", "");
    site_.answer("/nothing", kNoContent);
    site_.answer("/zip", kDownload);
    site_.answer("/to-hang", answerWith("", "302 Found", "Location: /hang\r\n"));
  }
  auto failures() const { return delegate_.count("fail"); }
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
      {"not found, with a page", scriptPage("404 Not Found"), true},
      {"an error without a word", answerWith("", "500 Internal Server Error"), true},
      {"for people with a name only",
       scriptPage("401 Unauthorized", "WWW-Authenticate: Basic realm=\"x\"\r\n"), true},
      {"nothing in it", answerWith("", "200 OK", Site::kHTML), true},
      {"plain text", answerWith("text", "200 OK", "Content-Type: text/plain\r\n"), true},
      {"forever elsewhere", answerWith("", "302 Found", "Location: /page\r\n"), false},
      {"no content", kNoContent, false},
      {"a download", kDownload, false},
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
  for (const std::string& url : {closed, "/hang"s, "file:///etc/hostname"s, "nonsense"s, ""s}) {
    load(url, std::chrono::seconds(1));
    EXPECT_TRUE(waitFor("fail")) << url;
    EXPECT_EQ(failures(), 1) << url;
    EXPECT_THAT(delegate_.advice, testing::StartsWith("Check the connection")) << url;
    EXPECT_FALSE(hasScriptObject()) << url;
  }
}

// Wherever the page's scripts lead, as it begins or later.
TEST_F(LoadingTest, APageMayLeadNowhere) {
  for (const char* page :
       {"<script>location = '/hang'</script>", "<meta http-equiv=refresh content='0;url=/hang'>",
        "<script>setTimeout(() => location.replace('/to-hang'), 100)</script>",
        "<script>location = 'http://127.0.0.1:1/'</script>",
        "<script>setTimeout(() => location = 'http://127.0.0.1:1/')</script>"}) {
    site_.page("/", page);
    load("/", std::chrono::seconds(1));
    EXPECT_TRUE(waitFor("fail")) << page;
    EXPECT_EQ(failures(), 1) << page;
    EXPECT_TRUE(hasBegun()) << page;
  }
}

// A page that has begun is there: however slow the rest of it is, whatever its frames show or do
// not, and though it leads to something that is no page.
TEST_F(LoadingTest, APageThatHasBegunIsThere) {
  site_.script("/", [](auto& client) {
    client.send("HTTP/1.1 200 OK\r\nContent-Type: text/html\r\n\r\n<iframe src=/none></iframe>"
                "<iframe src=/nothing></iframe><iframe src=/zip></iframe><iframe src=/hang>"
                "</iframe><iframe src='http://127.0.0.1:1/'></iframe><script>setTimeout(() => "
                "Recommender.done(), 1300)</script>" +
                std::string(5000, ' '));
    client.hang();
  });
  for (const char* path : {"/nothing", "/zip"})
    site_.page(path + std::string("-next"),
               "<script>onload = () => { location = '" + std::string(path) +
                   "'; setTimeout(() => Recommender.done(), 200) }</script>");
  for (const char* path : {"/", "/nothing-next", "/zip-next"}) {
    load(path, std::chrono::seconds(1));
    EXPECT_TRUE(waitFor("done")) << path;
    EXPECT_EQ(failures(), 0) << path;
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
  const char* headers =
      "Content-Type: text/html\r\nSet-Cookie: a=b\r\nCache-Control: max-age=9999\r\n";
  site_.answer("/", answerWith(R"(<script>
    const tellState = () => Recommender.log([document.cookie, localStorage.x].join());
    tellState(); document.cookie = 'c=d'; localStorage.x = 1; tellState();
    Recommender.log(navigator.plugins.length); Recommender.done()</script>)",
                               "200 OK", headers));
  for (int i = 0; i < 2; ++i) {
    load("/");
    ASSERT_TRUE(waitFor("done"));
    EXPECT_THAT(told(), testing::ElementsAre("a=b,", "a=b; c=d,1", "0"));
  }
  const auto heads = site_.heads("/");
  ASSERT_EQ(heads.size(), 2U) << "not from a cache";
  EXPECT_THAT(heads, testing::Each(testing::HasSubstr(" qtwebengine/")));
  EXPECT_THAT(heads, testing::Each(testing::HasSubstr(" photo%20tool/120 (null)\r\n")));
  EXPECT_THAT(heads, testing::Each(testing::Not(testing::HasSubstr("cookie:"))));
}

} // namespace
} // namespace wrenvale::platform
