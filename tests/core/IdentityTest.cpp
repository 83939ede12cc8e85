#include "core/Identity.h"

#include <gtest/gtest.h>

#include "core/Endpoints.h"
#include "platform/Net.h"
#include "tests/core/ServiceFixture.h"

namespace wrenvale {
namespace {

TEST(LocaleSuffix, TakesTheFirstThingTheLocaleKnows) {
  const struct {
    std::optional<std::string> country;
    std::vector<std::string> languages;
    const char* suffix;
  } rows[] = {{"CH", {"fr-CH", "de"}, "CH_fr-CH"}, {"DE", {}, "DE_EN"}, {{}, {"fr"}, "EN_fr"}};
  for (const auto& row : rows) {
    platform::FakeLocale locale;
    locale.country = row.country;
    locale.languages = row.languages;
    EXPECT_EQ(localeSuffix(locale), row.suffix);
  }
}

using Identity = ServiceTest;

TEST_F(Identity, ComesFromTheInfoDictionary) {
  start();
  EXPECT_EQ(service->bundleID(), "com.example.host");
  EXPECT_EQ(service->bundleVersion(), 120);
  EXPECT_EQ(service->appstoreID(), "123456789");
  fake.info["Appstore ID"] = "42";
  EXPECT_EQ(start().appstoreID(), "42") << "or text";
}

TEST_F(Identity, SurvivesInfoValuesOfOddTypes) {
  const Value odd[] = {Value(), Value::Array{1}, Value::Dictionary{},
                       true,    Date(),          Data{std::byte{9}}};
  for (const auto& value : odd) {
    for (auto& [key, info] : fake.info)
      info = value;
    start();
    EXPECT_EQ(service->bundleID(), std::nullopt);
    EXPECT_EQ(service->appName(), "");
    EXPECT_EQ(service->appstoreID(), std::nullopt);
    EXPECT_EQ(service->bundleVersion(), integerValue(value));
  }
}

TEST_F(Identity, NameIsTranslatedAndThenFixed) {
  for (const char* name : {"Fotowerkzeug", ""}) {
    fake.application.strings[{"InfoPlist", "CFBundleName"}] = name;
    EXPECT_EQ(start().appName(), name);
    fake.application.strings.clear();
    EXPECT_EQ(service->appName(), name);
  }
}

TEST(Endpoints, AreTheMakersAddresses) {
  const Endpoints endpoints({"http://v", "store.example", "", ""});
  const std::pair<std::string, const char*> rows[] = {
      {endpoints.resetDocument("US_en"), "http://v/store/reset_US_en.json"},
      {endpoints.recommenderDocument("DE_de", "_F"), "http://v/store/recommender_DE_de_F.json"},
      {endpoints.icon("a.png"), "http://v/store/images/a.png"},
      {endpoints.icon(std::nullopt), "http://v/store/images/(null)"},
      {endpoints.newsletterPage("US"), "http://v/store/newsletter/index_US.html"},
      {endpoints.subscription("x%3D"), "http://v/store/subscribe.php?data=x%3D"},
      {endpoints.subscription(std::nullopt), "http://v/store/subscribe.php?data=(null)"},
      {endpoints.moreApps("US_en"), "http://v/app_redirect/moreapps_US_en"},
      {endpoints.generalSupport("US_en"), "http://v/app_redirect/support_US_en"},
      {endpoints.support("US_en", "com.example.tool"),
       "http://v/app_redirect/support_US_en/com.example.tool"},
      {endpoints.support("%@", "b"), "http://v/app_redirect/support_%@/b"},
      {endpoints.twitter(), "http://v/app_redirect/twitter"},
      {endpoints.webSite(), "http://v"},
      {endpoints.storePage("42"), "macappstore://store.example/us/app/id42?mt=12"},
      {endpoints.storePage(std::nullopt), "macappstore://store.example/us/app/id(null)?mt=12"},
  };
  for (const auto& [address, expected] : rows)
    EXPECT_EQ(address, expected);
}

using UserAgent = ServiceTest;

TEST_F(UserAgent, NamesHostAndMachine) {
  fake.system.values["hw.model"] = "MacBookPro11,1";
  EXPECT_EQ(start().userAgent(),
            "Photo%20Tool/120 123456789 Darwin/14.5.0 (x86_64) (MacBookPro11%2C1)");
  fake.info.clear();
  fake.system.values.erase("hw.model");
  EXPECT_EQ(start().userAgent(), "/0 (null) Darwin/14.5.0 (x86_64) ((null))");
  fake.system.values.erase("kern.osrelease");
  EXPECT_EQ(service->userAgent(), std::nullopt);
  platform::URLRequest request;
  service->_setUserAgent(request);
  EXPECT_TRUE(request.headers.empty());
}

} // namespace
} // namespace wrenvale
