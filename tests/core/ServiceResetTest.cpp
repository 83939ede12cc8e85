#include <gmock/gmock.h>

#include "tests/core/ServiceFixture.h"

namespace wrenvale {
namespace {

class ServiceReset : public ServiceTest {
protected:
  ServiceReset() { serveReset(); }

  void startAfterBuild(std::int64_t build) {
    fake.userDefaults.setObject(build, keys::kRecommenderLastVersion);
    start();
  }

  Value number() const { return stored(keys::kRecommenderResetNumber); }
  Value owed() const { return stored(keys::kShowUpdateWindow); }
};

TEST_F(ServiceReset, AsksInTheBackgroundAndDecidesOnTheMainQueue) {
  startAfterBuild(119);
  fake.urlLoading.whileLoading = [&] {
    EXPECT_EQ(stored(keys::kRecommenderLastVersion), Value(120)) << "whatever comes of it";
    fake.userDefaults.setObject(4, keys::kRecommenderResetNumber); // too late to be heeded
  };
  service->reset();
  EXPECT_TRUE(fake.urlLoading.requests.empty());
  fake.queues.global.run();
  ASSERT_EQ(fake.urlLoading.requests.size(), 1U);
  const auto& request = fake.urlLoading.requests.front();
  EXPECT_EQ(request.url, "http://vendor.example/store/reset_US_en.json");
  EXPECT_EQ(request.httpMethod, "GET");
  EXPECT_EQ(request.timeoutInterval.count(), 60);
  EXPECT_THAT(request.headers,
              testing::ElementsAre(testing::Pair("User-Agent", *service->userAgent())));
  fake.userDefaults.removeObjectForKey(keys::kRecommenderResetNumber);
  EXPECT_TRUE(fake.queues.main.step());
  EXPECT_EQ(number(), Value(4));
  EXPECT_TRUE(owed().isNull()) << "in a turn of its own";
  EXPECT_TRUE(fake.queues.main.step());
  EXPECT_EQ(owed(), Value(true));
}

TEST_F(ServiceReset, FirstRunRemembersTheGenerationAndForcesNothing) {
  start().reset();
  fake.queues.runAll();
  EXPECT_EQ(stored(keys::kRecommenderLastVersion), Value(120));
  EXPECT_EQ(number(), Value(4));
  EXPECT_TRUE(owed().isNull());
  EXPECT_TRUE(service->triggerWelcomeWindow()) << "still the first run";
}

TEST_F(ServiceReset, AFailedDownloadChangesTheBuildOnly) {
  fake.urlLoading.answers["http://vendor.example/store/reset_US_en.json"] = "<html>";
  for (const char* what : {"no document", "no answer"}) {
    fake.userDefaults.values = {{"Other", "kept"}};
    startAfterBuild(119);
    service->reset();
    fake.queues.runAll();
    const Value::Dictionary expected = {{"Recommender Last Version", 120}, {"Other", "kept"}};
    EXPECT_EQ(fake.userDefaults.values, expected) << what;
    fake.urlLoading.answers.clear();
  }
}

} // namespace
} // namespace wrenvale
