// Real hosts against a real server on the loopback: what a launch asks for, and what it leaves.

#include <gtest/gtest.h>

#include <future>
#include <regex>

#include "tests/acceptance/HostProcess.h"
#include "tests/acceptance/VendorServer.h"

namespace wrenvale::tests {
namespace {

constexpr const char* kPhotoTool = "com.example.phototool";
constexpr const char* kPlainHost = "com.example.plainhost";
using Settings = Value::Dictionary;

const std::string kAutomatic = R"([{"bundle_id": "com.example.phototool", "reset_mode": "auto"}])";

Run launch(const Home& home, const char* program = PHOTO_TOOL) {
  auto run = home.run(program, {"--quit-after", "700"});
  EXPECT_EQ(run.status, 0) << run.errors;
  return run;
}

TEST(Launch, FirstNormalAndUpdateLaunchDiffer) {
  const Home home;
  const VendorServer server(kAutomatic);
  for (int i = 0; i < 2; ++i) {
    launch(home);
    EXPECT_EQ(home.defaults(kPhotoTool), Value(Settings{{"Recommender Last Version", 1204}}));
  }
  launch(home, PHOTO_TOOL_NEXT);
  EXPECT_EQ(home.defaults(kPhotoTool),
            Value(Settings{{"Recommender Last Version", 1205}, {"Show Update Window", true}}));
  auto resets = server.requests();
  std::erase_if(resets, [](auto& request) { return request.path != "/store/reset_US_en.json"; });
  ASSERT_EQ(resets.size(), 3U);
  EXPECT_TRUE(resets[0].userAgent.starts_with("Photo Tool/1204 123456789 Darwin/"));
  EXPECT_TRUE(resets[2].userAgent.starts_with("Photo Tool/1205 123456789 Darwin/"));
}

TEST(Launch, SaysWhyToWhoeverAsks) {
  const std::map<std::string, std::string> rows[] = {
      {}, {{"WRENVALE_LOG", "1"}}, {{"QT_LOGGING_RULES", "wrenvale.*=true"}}};
  const VendorServer server(kAutomatic);
  for (const auto& environment : rows) {
    const Home home;
    home.setDefaults(kPhotoTool, {{"Recommender Last Version", 1203}});
    const auto said = home.run(PHOTO_TOOL, {"--quit-after", "700"}, environment).errors;
    for (const char* line : {"wrenvale.launch: com.example.phototool, build 1204\n",
                             "/store/reset_US_en.json: status 200, 62 bytes\n",
                             "wrenvale.reset: no new generation; the welcome window is owed\n",
                             "wrenvale.welcome: not due: not the first run, and not owed\n"})
      EXPECT_EQ(said.find(line) != std::string::npos, !environment.empty()) << said;
  }
}

TEST(Launch, NothingThatAServerSendsHarmsTheHost) {
  const std::string bodies[] = {
      "<!DOCTYPE html><html><body>Sorry</body></html>",
      "[\"" + std::string(100U << 20U, 'x') + "\"]",
      std::string(3'000'000, '[') + std::string(3'000'000, ']'),
      R"([null, 5, "x", [], {"bundle_id": ["com.example.phototool"], "reset_mode": "auto"},
          {"bundle_id": "com.example.phototool", "reset_mode": ["auto"]}])",
  };
  for (const auto& body : bodies) {
    const Home home;
    const VendorServer server(body);
    home.setDefaults(kPhotoTool, {{"Recommender Last Version", 1203}, {"Host", "kept"}});
    launch(home);
    EXPECT_EQ(home.defaults(kPhotoTool),
              Value(Settings{{"Recommender Last Version", 1204}, {"Host", "kept"}}))
        << body.substr(0, 60);
    EXPECT_EQ(server.requests().size(), 1U);
  }
}

TEST(Launch, ADownloadInFlightDoesNotHoldTheExitUp) {
  const auto shortestTime = [] {
    auto time = std::chrono::milliseconds::max();
    for (int i = 0; i < 3; ++i)
      time = std::min(time, launch(Home()).time);
    return time.count();
  };
  std::promise<void> over;
  auto hanging = std::make_unique<VendorServer>(
      [released = over.get_future().share()](const auto&, auto&) { released.wait(); });
  const auto time = shortestTime();
  EXPECT_GE(hanging->requests().size(), 3U);
  over.set_value();
  hanging.reset();
  const VendorServer prompt(std::string("[]"));
  EXPECT_LE(time, shortestTime() + 100);
}

// Whether the host's launch asks the server, for every way of having an application object.
TEST(SilentHost, LaunchesWithoutAnyCodeOfItsOwn) {
  const std::pair<const char*, bool> rows[] = {{"core", true},    {"splash", true}, {"early", true},
                                               {"noloop", false}, {"none", false},  {"leak", true},
                                               {"static", true}};
  for (const auto& [kind, launches] : rows) {
    const Home home;
    const VendorServer server(std::string("[]"));
    const auto run = home.run(SILENT_HOST, {kind});
    EXPECT_EQ(run.status, 0) << kind << run.errors;
    EXPECT_EQ(server.requests().size(), launches ? 1U : 0U) << kind;
    EXPECT_EQ(home.defaults(kPlainHost).find("Recommender Last Version"),
              launches ? Value(7) : Value())
        << kind;
  }
}

TEST(UnloadingHost, GoesOn) {
  const Home home;
  const VendorServer server(std::string("[]"));
  EXPECT_EQ(home.run(UNLOADING_HOST, {WRENVALE_LIBRARY}).status, 0);
}

TEST(CallingHost, FindsAllAsPromised) {
  const Home home;
  const VendorServer server(std::string(
      R"([{"bundle_id": "com.example.plainhost", "reset_number": 1, "max_build_number": 9}])"));
  const auto first = home.run(CALLING_HOST);
  EXPECT_EQ(first.status, 0) << first.errors;
  EXPECT_EQ(first.output, "identifier before main: com.example.plainhost\n"
                          "name: Plain Host\n"
                          "build: 7\n"
                          "alert: not shown\n");
  const auto defaults = home.defaults(kPlainHost);
  EXPECT_EQ(defaults.find("Purchases"), Value(Value::Array{"product.one"}));
  EXPECT_TRUE(defaults.find("Rate Version").isNull() && defaults.find("Version Ratings").isNull());
  // The next launch is told of the generation anew, and the host sees the switch.
  home.setDefaults(kPlainHost, {{"Recommender Last Version", 7}});
  EXPECT_NE(home.run(CALLING_HOST).output.find("observed: true\n"), std::string::npos);
}

TEST(CallingHost, WithoutTheNetModuleOnlyTheNetworkIsMissing) {
  const Home home;
  const VendorServer server(kAutomatic);
  std::filesystem::copy(WRENVALE_LIBRARY, home.folder());
  const std::map<std::string, std::string> path = {{"LD_LIBRARY_PATH", home.folder()}};
  EXPECT_EQ(home.run(CALLING_HOST, {}, path).status, 0);
  EXPECT_EQ(home.defaults(kPlainHost).find("Recommender Last Version"), Value(7));
  EXPECT_TRUE(server.requests().empty());
  EXPECT_EQ(home.run(CALLING_HOST, {"encrypt"}, path).output, "encrypted: (nothing)\n");
}

TEST(CallingHost, EncryptsUnderTheEmbeddedKeyAndEndsIfThatIsBroken) {
  const Home home;
  const std::regex block("encrypted: [A-Za-z0-9+/]{171}=\n"); // 128 bytes
  const auto run = home.run(CALLING_HOST, {"encrypt"});
  EXPECT_TRUE(std::regex_match(run.output, block)) << run.output << run.errors;
  const std::regex failure("SecItemImport failed \\(oserr=-?[1-9][0-9]*\\)\n\\(null\\)\n");
  for (const char* when : {"", "beside reader"}) {
    const auto broken =
        home.run(CALLING_HOST, {"encrypt", when}, {{"LD_LIBRARY_PATH", BROKEN_KEY_FOLDER}});
    EXPECT_EQ(broken.status, 255) << when;
    EXPECT_TRUE(std::regex_match(broken.errors, failure)) << broken.errors;
  }
}

// However early the host asks, a user who rated an earlier build in the store is not bothered.
TEST(CallingHost, NoTriggerComesBeforeTheLaunchWork) {
  const VendorServer server(std::string("[]"));
  for (const char* when : {"before the loop", "queued", "timer"})
    for (const bool isRated : {false, true}) {
      const Home home;
      const Value::Array earlier = {Settings{{"History", Value::Array{isRated ? 3 : 0}}}};
      home.setDefaults(kPlainHost, {{"Version Ratings", Settings{{"6", earlier}}}});
      EXPECT_EQ(home.run(CALLING_HOST, {"ask", when}).output,
                isRated ? "rating: not asked\n" : "rating: asked\n")
          << when;
    }
}

} // namespace
} // namespace wrenvale::tests
