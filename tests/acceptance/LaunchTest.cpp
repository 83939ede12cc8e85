// Real hosts against a real server on the loopback: what a launch asks for, and what it leaves.

#include <gtest/gtest.h>

#include <condition_variable>
#include <fstream>
#include <regex>

#include "tests/acceptance/HostProcess.h"
#include "tests/acceptance/VendorServer.h"

namespace wrenvale::tests {
namespace {

constexpr const char* kPhotoTool = "com.example.phototool";
constexpr const char* kPlainHost = "com.example.plainhost";

constexpr const char* kAutomatic =
    R"([{"bundle_id": "com.example.phototool", "reset_mode": "auto"}])";
Run launch(const Home& home, const char* program) {
  return home.run(program, {"--quit-after", "700"});
}

TEST(Launch, FirstNormalAndUpdateLaunchDiffer) {
  const Home home;
  const VendorServer server{std::string(kAutomatic)};
  using D = Value::Dictionary;

  EXPECT_EQ(launch(home, PHOTO_TOOL).status, 0);
  EXPECT_EQ(home.defaults(kPhotoTool), Value(D{{"Recommender Last Version", 1204}}));

  EXPECT_EQ(launch(home, PHOTO_TOOL).status, 0);
  EXPECT_EQ(home.defaults(kPhotoTool), Value(D{{"Recommender Last Version", 1204}}));

  EXPECT_EQ(launch(home, PHOTO_TOOL_NEXT).status, 0);
  const D updated = {{"Recommender Last Version", 1205}, {"Show Update Window", true}};
  EXPECT_EQ(home.defaults(kPhotoTool), Value(updated));

  auto resets = server.requests();
  std::erase_if(resets, [](auto& request) { return request.path != "/store/reset_US_en.json"; });
  ASSERT_EQ(resets.size(), 3U);
  EXPECT_EQ(resets[0].userAgent.find("Photo Tool/1204 123456789 Darwin/"), 0U);
  EXPECT_EQ(resets[2].userAgent.find("Photo Tool/1205 123456789 Darwin/"), 0U);
}

std::string nested(std::size_t depth) {
  return std::string(depth, '[') + std::string(depth, ']');
}

TEST(Launch, NothingThatAServerSendsHarmsTheHost) {
  const std::pair<const char*, std::string> bodies[] = {
      {"web page", "<!DOCTYPE html><html><body>Sorry</body></html>"},
      {"cut off", std::string(kAutomatic).substr(0, 40)},
      {"100 MB", "[\"" + std::string(100U << 20U, 'x') + "\"]"},
      {"nested three million deep", nested(3'000'000)},
      {"not UTF-8", "[\"\xFF\xFE\"]"},
      {"odd entries", R"([null, 5, "x", [], {"bundle_id": ["com.example.phototool"],
          "reset_mode": "auto"}, {"bundle_id": "com.example.phototool", "reset_mode": ["auto"]}])"},
  };
  for (const auto& [what, body] : bodies) {
    const Home home;
    const VendorServer server{body};
    std::filesystem::create_directories(home.settings(kPhotoTool).parent_path());
    std::ofstream(home.settings(kPhotoTool))
        << "<plist version=\"1.0\"><dict><key>Recommender Last Version</key>"
           "<integer>1203</integer><key>Host</key><string>kept</string></dict></plist>";
    EXPECT_EQ(launch(home, PHOTO_TOOL).status, 0) << what;
    const Value::Dictionary expected = {{"Recommender Last Version", 1204}, {"Host", "kept"}};
    EXPECT_EQ(home.defaults(kPhotoTool), Value(expected)) << what;
    EXPECT_EQ(server.requests().size(), 1U) << what;
  }
}

TEST(Launch, ADownloadInFlightDoesNotHoldTheExitUp) {
  const auto timeAgainst = [](const VendorServer&) {
    const Home home;
    auto best = std::chrono::milliseconds::max();
    for (int i = 0; i < 3; ++i) {
      const auto run = launch(home, PHOTO_TOOL);
      EXPECT_EQ(run.status, 0) << run.errors;
      best = std::min(best, run.time);
    }
    return best;
  };
  const auto prompt = timeAgainst(VendorServer{std::string("[]")});
  std::mutex mutex;
  std::condition_variable released;
  bool done = false;
  std::unique_lock lock(mutex);
  // The answer comes only when the test is over.
  VendorServer server([&](const auto&, auto&) {
    std::unique_lock handler(mutex);
    released.wait_for(handler, std::chrono::seconds(30), [&] { return done; });
  });
  lock.unlock();
  const auto hanging = timeAgainst(server);
  lock.lock();
  done = true;
  lock.unlock();
  released.notify_all();
  EXPECT_LE(hanging.count(), prompt.count() + 100);
}

class SilentHost : public testing::TestWithParam<std::pair<const char*, bool>> {};

// Whether the host's launch asked the server, for every way of having an application object.
TEST_P(SilentHost, LaunchesWithoutAnyCodeOfItsOwn) {
  const auto [kind, launches] = GetParam();
  const Home home;
  const VendorServer server{std::string("[]")};
  const auto run = home.run(SILENT_HOST, {kind});
  EXPECT_EQ(run.status, 0) << run.errors;
  EXPECT_EQ(server.requests().size(), launches ? 1U : 0U);
  EXPECT_EQ(home.defaults(kPlainHost).find("Recommender Last Version"),
            launches ? Value(7) : Value());
}

INSTANTIATE_TEST_SUITE_P(Kinds, SilentHost,
                         testing::Values(std::pair("core", true), std::pair("splash", true),
                                         std::pair("early", true), std::pair("leak", true),
                                         std::pair("noloop", false), std::pair("none", false)),
                         [](const auto& info) { return std::string(info.param.first); });

TEST(InspectingHost, FindsAllAsPromised) {
  const Home home;
  const VendorServer server{
      std::string(R"([{"bundle_id": "com.example.plainhost", "reset_number": 1,
                       "max_build_number": 9}])")};
  const auto first = home.run(INSPECTING_HOST);
  EXPECT_EQ(first.status, 0) << first.errors;
  EXPECT_EQ(first.output, "identifier before main: com.example.plainhost\n"
                          "name: Plain Host\n"
                          "build: 7\n"
                          "threads before the loop: 1\n"
                          "libQt6Network: not mapped\n"
                          "libcrypto: not mapped\n"
                          "libssl: not mapped\n"
                          "libwrenvale-net: not mapped\n"
                          "alert: not shown\n");
  // Forget the generation: the second launch is told of it anew, and the host sees the switch.
  auto defaults = home.defaults(kPlainHost);
  EXPECT_EQ(defaults.find("Purchases"), Value(Value::Array{"product.one"}));
  EXPECT_TRUE(defaults.find("Rate Version").isNull() && defaults.find("Version Ratings").isNull());
  std::filesystem::remove(home.settings(kPlainHost));
  std::ofstream(home.settings(kPlainHost))
      << "<plist version=\"1.0\"><dict><key>Recommender Last Version</key><integer>7</integer>"
         "</dict></plist>";
  EXPECT_NE(home.run(INSPECTING_HOST).output.find("observed: true\n"), std::string::npos);
}

TEST(InspectingHost, WithoutTheNetModuleOnlyTheNetworkIsMissing) {
  const Home home;
  const VendorServer server{std::string(kAutomatic)};
  const auto folder = home.settings("library").parent_path();
  std::filesystem::create_directories(folder);
  const std::filesystem::path library = WRENVALE_LIBRARY;
  std::filesystem::copy_file(library, folder / library.filename());
  const std::map<std::string, std::string> path = {{"LD_LIBRARY_PATH", folder}};

  EXPECT_EQ(home.run(INSPECTING_HOST, {}, path).status, 0);
  EXPECT_EQ(home.defaults(kPlainHost).find("Recommender Last Version"), Value(7));
  EXPECT_TRUE(server.requests().empty());
  EXPECT_NE(home.run(INSPECTING_HOST, {"encrypt"}, path).output.find("encrypted: (nothing)\n"),
            std::string::npos);
}

TEST(InspectingHost, EncryptsUnderTheEmbeddedKey) {
  const Home home;
  const auto output = home.run(INSPECTING_HOST, {"encrypt"}).output;
  const auto start = output.find("encrypted: ");
  ASSERT_NE(start, std::string::npos);
  EXPECT_EQ(output.substr(start + 11).size(), 173U) << "128 bytes in base64, and a line's end";
}

TEST(InspectingHost, ABrokenPublicKeyEndsTheProcess) {
  for (const char* when : {"encrypt", "encrypt beside reader"}) {
    const Home home;
    const auto run = home.run(INSPECTING_HOST, {when}, {{"LD_LIBRARY_PATH", BROKEN_KEY_FOLDER}});
    EXPECT_EQ(run.status, 255) << when;
    EXPECT_TRUE(std::regex_match(
        run.errors, std::regex("SecItemImport failed \\(oserr=-?[1-9][0-9]*\\)\n\\(null\\)\n")))
        << run.errors;
  }
}

// However early the host asks, a user who rated an earlier build in the store is not bothered.
TEST(InspectingHost, NoTriggerComesBeforeTheLaunchWork) {
  const VendorServer server{std::string("[]")};
  for (const char* when : {"before the loop", "queued", "timer"}) {
    for (const bool isRated : {false, true}) {
      const Home home;
      std::filesystem::create_directories(home.settings(kPlainHost).parent_path());
      std::ofstream(home.settings(kPlainHost))
          << "<plist version=\"1.0\"><dict><key>Version "
             "Ratings</key><dict><key>6</key><array><dict>"
             "<key>History</key><array><integer>"
          << (isRated ? 3 : 0) << "</integer></array></dict></array></dict></dict></plist>";
      const auto run = home.run(INSPECTING_HOST, {"ask", when});
      EXPECT_EQ(run.output, isRated ? "rating: not asked\n" : "rating: asked\n") << when;
    }
  }
}

} // namespace
} // namespace wrenvale::tests
