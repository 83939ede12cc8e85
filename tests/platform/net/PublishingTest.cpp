// From a real server to the page: the document is downloaded, read, ranked and handed over. Only
// the desktop is in memory.

#include <gtest/gtest.h>

#include <wrenvale/KVXWrenvale.h>

#include "core/BuildConfiguration.h"
#include "platform/fake/FakePlatform.h"
#include "platform/net/JSONReader.h"
#include "platform/net/QtURLLoading.h"
#include "tests/platform/net/LoopbackServer.h"

namespace wrenvale::platform {
namespace {

constexpr const char* kDocument = R"({
  "options": {"stable_versions": [{"bundle_id": " com.example.host\n", "build_number": "120"}]},
  "apps": [
    {"bundle_id": "com.example.low", "sp_name": "Low", "priority_score": 1},
    {"bundle_id": "com.example.best", "sp_name": "Best", "group": "g", "priority_score": 10,
     "dependency": [{"bundle_id": "com.example.there"}], "sp_icon": "best.png"},
    {"bundle_id": "com.example.second", "group": "g", "priority_score": 50},
    {"bundle_id": "com.example.there", "priority_score": 900},
    {"sp_name": "Nameless", "priority_score": 900}]})";

std::string answer(std::string_view body) {
  return "HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Length: " + std::to_string(body.size()) +
         "\r\n\r\n" + std::string(body);
}

class Publishing : public testing::Test {
protected:
  Publishing() {
    fake.mainBundle.info = {{"CFBundleIdentifier", "com.example.host"}, {"CFBundleVersion", "120"}};
    fake.installedApplications.identifiers = {"com.example.there"};
  }

  // What the page is handed when the server answers so: the identifiers in order, or nothing.
  std::optional<std::vector<Value>> handedOver(const std::string& httpAnswer) {
    const LoopbackServer server(httpAnswer);
    KVXWrenvale service(
        platform,
        {.vendorBase = server.url(""), .storeHost = {}, .publicKey = {}, .vendorSiteName = {}});
    service.subscribeToNewsletter();
    auto& window = fake.recommenderWindows.window();
    window.startPage();
    window.call("ready");
    fake.queues.runAll();
    EXPECT_EQ(server.requests().size(), 1U);
    if (window.calls.empty()) return std::nullopt;
    EXPECT_EQ(window.calls[0].first, "setRecommendations");
    const Value text = window.calls[0].second.at(0);
    const auto list = reader.JSONObjectWithData(*text.string()).object.value_or(Value());
    std::vector<Value> identifiers;
    for (std::size_t i = 0; i < list.size(); ++i)
      identifiers.push_back(list.at(i).find("bundleID"));
    return identifiers;
  }

  FakePlatform fake;
  QtURLLoading loading;
  JSONReader reader;
  const Platform platform{{fake.mainBundle, fake.userDefaults, fake.locale, fake.kernel, loading,
                           fake.encryption, reader, fake.installedApplications, fake.fileManager,
                           fake.clock, fake.random},
                          fake.localization,
                          fake.application,
                          fake.workspace,
                          fake.queues,
                          fake.rateWindows,
                          fake.alerts,
                          fake.recommenderWindows,
                          fake.menus};
};

TEST_F(Publishing, HandsTheRankedListToThePage) {
  const std::vector<Value> expected = {"com.example.best", "com.example.low"};
  EXPECT_EQ(handedOver(answer(kDocument)), expected);
}

TEST_F(Publishing, HandsOverNothingWithoutADocumentForThisHost) {
  std::string older = kDocument;
  older.replace(older.find("\"120\""), 5, "\"119\"");
  for (const auto& body : {std::string("<html>Sorry</html>"), std::string(), older})
    EXPECT_EQ(handedOver(answer(body)), std::nullopt) << body;
}

TEST_F(Publishing, AnEmptyListIsAListAllTheSame) {
  std::string without = kDocument;
  without.replace(without.find("\"apps\""), 6, "\"none\"");
  EXPECT_EQ(handedOver(answer(without)), std::vector<Value>());
}

} // namespace
} // namespace wrenvale::platform
