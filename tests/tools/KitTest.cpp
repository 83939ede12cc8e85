// What the kit decides without a socket.

#include <gtest/gtest.h>

#include "tools/wrenvale/serve/ListenAddress.h"
#include "tools/wrenvale/serve/RedirectPage.h"
#include "tools/wrenvale/serve/RequestLog.h"

namespace wrenvale::kit {
namespace {

TEST(LoopbackAddress, IsWhereAPlainServerOfThisMachineListens) {
  using Expected = std::optional<ListenAddress>;
  const std::pair<const char*, Expected> rows[] = {
      {"http://127.0.0.1:47210", {{"127.0.0.1", 47210}}},
      {"http://127.1.2.255:1", {{"127.1.2.255", 1}}},
      {"http://localhost:8080", {{"127.0.0.1", 8080}}},
      {"http://[::1]:8080", {{"::1", 8080}}},
      {"http://127.0.0.1", {{"127.0.0.1", 80}}},
      {"http://[::1]", {{"::1", 80}}},
      {"https://127.0.0.1:47210", {}},
      {"http://brenmoor.example", {}},
      {"http://brenmoor.example:47210", {}},
      {"http://127.0.0.1.brenmoor.example:80", {}},
      {"http://128.0.0.1:80", {}},
      {"http://127.0.0.256:80", {}},
      {"http://127.0.0:80", {}},
      {"http://[::2]:80", {}},
      {"http://[::1:80", {}},
      {"http://127.0.0.1:65536", {}},
      {"http://127.0.0.1:0", {}},
      {"http://127.0.0.1:", {}},
      {"http://127.0.0.1:-1", {}},
      {"http://127.0.0.1:80/site", {}},
      {"http://127.0.0.1/site", {}},
      {"http://:80", {}},
      {"127.0.0.1:80", {}},
      {"", {}},
  };
  for (const auto& [base, expected] : rows)
    EXPECT_EQ(loopbackAddress(base), expected) << base;
  EXPECT_EQ(baseOf({"::1", 80}), "http://[::1]:80");
}

TEST(LogLine, ShowsNothingThatATerminalWouldObey) {
  AnsweredRequest request{.time = "12:00:01",
                          .status = 200,
                          .method = "GET",
                          .target = "/a?b=c%20d",
                          .userAgent = "Photo Tool/1204 1 (x)"};
  EXPECT_EQ(logLine(request), "12:00:01 200 GET /a?b=c%20d \"Photo Tool/1204 1 (x)\"");
  request.method = request.userAgent = "";
  EXPECT_EQ(logLine(request), "12:00:01 200 - /a?b=c%20d \"-\"");

  const std::pair<std::string_view, const char*> rows[] = {
      {"\x1b[31m", R"(\x1b[31m)"},
      {"a\r\nb\tc", R"(a\x0d\x0ab\x09c)"},
      {{"\0\x7f", 2}, R"(\x00\x7f)"},
      {"\xc2\x9b\xe2\x80\xae", R"(\xc2\x9b\xe2\x80\xae)"}, // an escape and a turn of direction
      {R"(" 404 GET /)", R"(\x22 404 GET /)"},
      {R"(\x1b)", R"(\x5cx1b)"},
  };
  for (const auto& [text, shown] : rows)
    EXPECT_EQ(escaped(text), shown);
}

TEST(RedirectPage, SaysWhereTheAddressLeads) {
  const std::pair<const char*, const char*> rows[] = {
      {"/app_redirect/twitter", "social feed"},
      {"/app_redirect/moreapps_DE_de", "applications, for DE_de<"},
      {"/app_redirect/support_US_en", "general support page, for US_en<"},
      {"/app_redirect/support_US_en/com.example.phototool", "com.example.phototool, for US_en<"},
      {"/app_redirect/support_<b>/\"&", "&quot;&amp;, for &lt;b&gt;<"},
      {"/app_redirect/", nullptr},
      {"/app_redirect/twitter/x", nullptr},
      {"/app_redirect/elsewhere", nullptr},
      {"/moreapps_US_en", nullptr},
  };
  for (const auto& [path, words] : rows) {
    const auto page = redirectPage(path);
    ASSERT_EQ(page.has_value(), words != nullptr) << path;
    if (!page) continue;
    EXPECT_NE(page->find(words), std::string::npos) << path << "\n" << *page;
  }
}

} // namespace
} // namespace wrenvale::kit
