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
      {"http://127.1.2.255:1", {{"127.1.2.255", 1}}},
      {"http://localhost:8080", {{"127.0.0.1", 8080}}},
      {"http://[::1]:8080", {{"::1", 8080}}},
      {"http://[::1]", {{"::1", 80}}},
      {"https://127.0.0.1:47210", {}},
      {"http://127.0.0.1.brenmoor.example:80", {}},
      {"http://128.0.0.1:80", {}},
      {"http://127.0.0.256:80", {}},
      {"http://[::1:80", {}},
      {"http://127.0.0.1:65536", {}},
      {"http://127.0.0.1:0", {}},
      {"http://127.0.0.1:80/site", {}},
      {"", {}},
  };
  for (const auto& [base, expected] : rows)
    EXPECT_EQ(loopbackAddress(base), expected) << base;
  EXPECT_EQ(baseOf({"::1", 80}), "http://[::1]:80");
}

TEST(LogLine, ShowsNothingThatATerminalWouldObey) {
  EXPECT_EQ(logLine({.time = "12:00:01",
                     .status = 200,
                     .method = "",
                     .target = "/a?b=c%20d",
                     .userAgent = ""}),
            "12:00:01 200 - /a?b=c%20d \"-\"");
  EXPECT_EQ(escaped({"\x1b[31m a\r\nb\tc\0\x7f", 14}), R"(\x1b[31m a\x0d\x0ab\x09c\x00\x7f)");
  // An escape and a turn of direction.
  EXPECT_EQ(escaped("\xc2\x9b\xe2\x80\xae"), R"(\xc2\x9b\xe2\x80\xae)");
  EXPECT_EQ(escaped(R"(" 404 GET /\x1b)"), R"(\x22 404 GET /\x5cx1b)");
}

TEST(RedirectPage, SaysWhereTheAddressLeads) {
  const std::pair<const char*, const char*> rows[] = {
      {"/app_redirect/twitter", "social feed"},
      {"/app_redirect/support_US_en/com.example.phototool", "com.example.phototool, for US_en<"},
      {"/app_redirect/support_<b>/\"&", "&quot;&amp;, for &lt;b&gt;<"},
      {"/app_redirect/elsewhere", nullptr},
  };
  for (const auto& [path, words] : rows) {
    const auto page = redirectPage(path);
    ASSERT_EQ(page.has_value(), words != nullptr) << path;
    EXPECT_TRUE(!page || page->find(words) != std::string::npos) << path << page.value_or("");
  }
}

} // namespace
} // namespace wrenvale::kit
