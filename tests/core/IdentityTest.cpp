#include "core/Identity.h"

#include <gtest/gtest.h>

#include "core/Endpoints.h"
#include "platform/Net.h"
#include "tests/core/ServiceFixture.h"

namespace wrenvale {
namespace {

using Identity = ServiceTest;

TEST_F(Identity, LocaleSuffixTakesTheFirstThingTheLocaleKnows) {
  fake.locale.country = "CH";
  fake.locale.languages = {"fr-CH", "de"};
  EXPECT_EQ(localeSuffix(fake.locale), "CH_fr-CH");
  fake.locale.languages.clear();
  fake.locale.country.reset();
  EXPECT_EQ(localeSuffix(fake.locale), "EN_EN");
}

TEST_F(Identity, IsTheInfoDictionarysWithTheNameOfTheFirstLook) {
  fake.application.strings[{"InfoPlist", "CFBundleName"}] = "Fotowerkzeug";
  start();
  EXPECT_EQ(service->bundleID(), "com.example.host");
  EXPECT_EQ(service->bundleVersion(), 120);
  EXPECT_EQ(service->appstoreID(), "123456789");
  EXPECT_EQ(service->appName(), "Fotowerkzeug");
  fake.application.strings.clear();
  EXPECT_EQ(service->appName(), "Fotowerkzeug");

  fake.info = {{"Appstore ID", "42"}, {"CFBundleVersion", "0042.1"}};
  start();
  EXPECT_EQ(service->appstoreID(), "42");
  EXPECT_EQ(service->bundleVersion(), 42);
  EXPECT_EQ(service->appName(), "");
  fake.info["CFBundleName"] = "Too late";
  EXPECT_EQ(service->appName(), "");
}

TEST_F(Identity, SurvivesInfoValuesOfOddTypes) {
  for (const Value& value : {Value(Value::Array{1}), Value(true), Value(Data{std::byte{9}})}) {
    for (auto& [key, info] : fake.info)
      info = value;
    start();
    EXPECT_EQ(service->bundleID(), std::nullopt);
    EXPECT_EQ(service->appName(), "");
    EXPECT_EQ(service->appstoreID(), std::nullopt);
    EXPECT_EQ(service->bundleVersion(), value == Value(true) ? 1 : 0);
  }
}

// The other addresses are read where they are asked for.
TEST(Endpoints, TakeWhatTheyAreGivenAsItIs) {
  const Endpoints endpoints({"http://v", "store.example", "", ""});
  EXPECT_EQ(endpoints.support("%@", "b"), "http://v/app_redirect/support_%@/b");
  EXPECT_EQ(endpoints.storePage({}), "macappstore://store.example/us/app/id(null)?mt=12");
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
  EXPECT_FALSE(service->userAgent());
  platform::URLRequest request;
  service->_setUserAgent(request);
  EXPECT_TRUE(request.headers.empty());
}

} // namespace
} // namespace wrenvale
