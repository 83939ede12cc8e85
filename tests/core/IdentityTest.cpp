#include "core/Identity.h"

#include <gtest/gtest.h>

#include "core/Endpoints.h"
#include "platform/URLLoading.h"
#include "tests/core/ServiceFixture.h"

namespace wrenvale {
namespace {

TEST(LocaleSuffix, TakesTheFirstThingTheLocaleKnows) {
  using Text = std::optional<std::string>;
  const struct {
    Text country, language;
    std::vector<std::string> languages;
    const char* suffix;
  } rows[] = {
      {"US", "en", {"en"}, "US_en"}, {"CH", "fr", {"fr-CH", "de"}, "CH_fr-CH"},
      {"FR", "fr", {}, "FR_fr"},     {{}, "eo", {}, "EN_eo"},
      {"DE", {}, {}, "DE_EN"},       {{}, {}, {}, "EN_EN"},
      {{}, {}, {"fr"}, "EN_fr"},
  };
  for (const auto& row : rows) {
    platform::FakeLocale locale;
    locale.country = row.country;
    locale.language = row.language;
    locale.languages = row.languages;
    EXPECT_EQ(localeSuffix(locale), row.suffix);
  }
}

using Identity = ServiceTest;

TEST_F(Identity, ComesFromTheInfoDictionary) {
  start();
  EXPECT_EQ(service->bundleID(), "com.example.host");
  EXPECT_EQ(service->bundleVersion(), 120);
  EXPECT_EQ(service->appName(), "Photo Tool");
  EXPECT_EQ(service->appstoreID(), "123456789");
}

TEST_F(Identity, SurvivesInfoValuesOfOddTypes) {
  const Value odd[] = {Value(), Value::Array{1}, Value::Dictionary{},
                       true,    Date(),          Data{std::byte{9}}};
  for (const auto& value : odd) {
    for (auto& [key, info] : fake.mainBundle.info)
      info = value;
    start();
    EXPECT_EQ(service->bundleID(), std::nullopt);
    EXPECT_EQ(service->appName(), "");
    EXPECT_EQ(service->appstoreID(), std::nullopt);
    EXPECT_EQ(service->bundleVersion(), value == Value(true) ? 1 : 0);
  }
}

TEST_F(Identity, BuildNumberIsTheLeadingInteger) {
  const std::pair<Value, std::int64_t> rows[] = {
      {"1204", 1204}, {"3.1", 3}, {"2.0", 2}, {"0042", 42}, {1204, 1204}, {3.9, 3}, {"beta", 0}};
  start();
  for (const auto& [value, build] : rows) {
    fake.mainBundle.info["CFBundleVersion"] = value;
    EXPECT_EQ(service->bundleVersion(), build);
  }
}

TEST_F(Identity, NameIsTranslatedAndThenFixed) {
  fake.localization.info["CFBundleName"] = "Fotowerkzeug";
  start();
  EXPECT_EQ(service->appName(), "Fotowerkzeug");
  fake.localization.info.clear();
  EXPECT_EQ(service->appName(), "Fotowerkzeug");
}

TEST_F(Identity, AnEmptyNameIsFixedToo) {
  fake.mainBundle.info.erase("CFBundleName");
  start();
  EXPECT_EQ(service->appName(), "");
  fake.mainBundle.info["CFBundleName"] = "Too late";
  EXPECT_EQ(service->appName(), "");
}

TEST_F(Identity, StoreIdentifierMayBeText) {
  fake.mainBundle.info["Appstore ID"] = "42";
  EXPECT_EQ(start().appstoreID(), "42");
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
  fake.mainBundle.info["CFBundleVersion"] = "1204";
  fake.kernel.values["hw.model"] = "MacBookPro11,1";
  EXPECT_EQ(start().userAgent(),
            "Photo%20Tool/1204 123456789 Darwin/14.5.0 (x86_64) (MacBookPro11%2C1)");
}

TEST_F(UserAgent, WritesWhatIsMissingAsAFormatterWould) {
  fake.mainBundle.info.clear();
  fake.kernel.values.erase("hw.model");
  EXPECT_EQ(start().userAgent(), "/0 (null) Darwin/14.5.0 (x86_64) ((null))");
}

TEST_F(UserAgent, NeedsARecentSystemThatKnowsItsRelease) {
  start();
  const auto hasHeader = [&] {
    platform::URLRequest request;
    service->_setUserAgent(request);
    return !request.headers.empty();
  };
  fake.kernel.version = 1343.0;
  EXPECT_TRUE(hasHeader());
  fake.kernel.version = 1342.9;
  EXPECT_FALSE(hasHeader());
  fake.kernel.version = 1343.0;
  fake.kernel.values.erase("kern.osrelease");
  EXPECT_FALSE(hasHeader());
}

} // namespace
} // namespace wrenvale
