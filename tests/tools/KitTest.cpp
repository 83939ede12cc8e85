// What the kit decides without a socket, and the state of a host that it changes.

#include <gtest/gtest.h>

#include <cstdlib>
#include <tuple>

#include "tests/desktop/linux/TemporaryFolder.h"
#include "tests/tools/KitProcess.h"
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

TEST(State, IsShownAndChanged) {
  const platform::TemporaryFolder home;
  setenv("XDG_CONFIG_HOME", home.path().c_str(), 1);
  home.write("/com.b/defaults.plist/a folder", "");
  const std::tuple<const char*, int, const char*> rows[] = {
      {"com.a", 0, "Nothing is on record: the next launch is a first one.\n"},
      {"com.a set 'Version Ratings' '{\"7\": [2.5, \"x\", false]}'", 0, ""},
      {"com.a set 'Show Update Window' true", 0, ""},
      {"com.a set 'Version Counters' '[null]'", 2, "no null within a value"},
      {"com.a set 'Rate Version' 7x", 2, "no JSON value: 7x"},
      {"com.a set Purchases '[]'", 2, "keeps no \"Purchases\"; its keys are\n  Recommender Last"},
      {"com.a show", 0,
       "Show Update Window        true\nVersion Ratings           {\"7\":[2.5,\"x\",false]}\n"},
      {"com.a set 'Version Ratings' null", 0, ""},
      {"com.a --json", 0, "{\n  \"Show Update Window\": true\n}\n"},
      {"com.a reset", 0, ""},
      {"com.a show more", 2, "show, reset, or set"},
      {"com.a", 0, "Nothing is on record"},
      {"com.b", 1, "cannot be read or written"},
      {"../com.a", 1, "cannot be read or written"},
      {"", 2, "a bundle identifier is needed"},
  };
  for (const auto& [arguments, status, says] : rows) {
    const auto run = tests::runKit(std::string("state ") + arguments);
    EXPECT_EQ(run.status, status) << arguments << run.text;
    EXPECT_NE(run.text.find(says), std::string::npos) << arguments << run.text;
  }
  unsetenv("XDG_CONFIG_HOME");
}

} // namespace
} // namespace wrenvale::kit
