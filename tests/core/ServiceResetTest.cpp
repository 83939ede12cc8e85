#include "tests/core/ServiceFixture.h"

namespace wrenvale {
namespace {

constexpr const char* kAddress = "http://vendor.example/store/reset_US_en.json";

class ServiceReset : public ServiceTest {
protected:
  ServiceReset() {
    answer(Value::Array{Value::Dictionary{{"bundle_id", "com.example.host"},
                                          {"reset_number", 4},
                                          {"min_build_number", 100},
                                          {"max_build_number", 200}}});
  }

  void answer(Value document) {
    fake.urlLoading.answers[kAddress] = "the document";
    fake.json.documents["the document"] = std::move(document);
  }

  void startAfterBuild(std::int64_t build) {
    fake.userDefaults.setObject(build, keys::kRecommenderLastVersion);
    start();
  }

  void check() {
    service->reset();
    fake.queues.runAll();
  }
};

TEST_F(ServiceReset, ReturnsAtOnceAndAsksTheServerInTheBackground) {
  start().reset();
  EXPECT_TRUE(fake.urlLoading.requests.empty());
  fake.queues.global.run();
  ASSERT_EQ(fake.urlLoading.requests.size(), 1U);
  const auto& request = fake.urlLoading.requests.front();
  EXPECT_EQ(request.url, kAddress);
  EXPECT_EQ(request.httpMethod, "GET");
  EXPECT_EQ(request.timeoutInterval.count(), 60);
  ASSERT_EQ(request.headers.size(), 1U);
  EXPECT_EQ(request.headers.front().first, "User-Agent");
  EXPECT_EQ(request.headers.front().second, *service->userAgent());
}

TEST_F(ServiceReset, FirstRunRemembersTheGenerationAndForcesNothing) {
  start();
  check();
  EXPECT_EQ(stored(keys::kRecommenderLastVersion), Value(120));
  EXPECT_EQ(stored(keys::kRecommenderResetNumber), Value(4));
  EXPECT_TRUE(stored(keys::kShowUpdateWindow).isNull());
  EXPECT_TRUE(service->triggerWelcomeWindow()) << "still the first run";
}

TEST_F(ServiceReset, TheBuildIsRememberedBeforeTheDownloadAndTheRestDecidedOnWhatWasThere) {
  startAfterBuild(120);
  fake.urlLoading.whileLoading = [&] {
    fake.userDefaults.setObject(4, keys::kRecommenderResetNumber);
  };
  check();
  EXPECT_EQ(stored(keys::kShowUpdateWindow), Value(true));

  startAfterBuild(119);
  fake.urlLoading.whileLoading = [&] {
    EXPECT_EQ(stored(keys::kRecommenderLastVersion), Value(120));
  };
  check();
}

TEST_F(ServiceReset, TouchesTheInterfaceOnTheMainQueueOnly) {
  startAfterBuild(120);
  service->reset();
  fake.queues.global.run();
  EXPECT_TRUE(stored(keys::kRecommenderResetNumber).isNull());
  EXPECT_TRUE(fake.queues.main.step());
  EXPECT_EQ(stored(keys::kRecommenderResetNumber), Value(4));
  EXPECT_TRUE(stored(keys::kShowUpdateWindow).isNull());
  EXPECT_TRUE(fake.queues.main.step());
  EXPECT_EQ(stored(keys::kShowUpdateWindow), Value(true));
}

TEST_F(ServiceReset, AFailedDownloadChangesTheBuildOnly) {
  const auto run = [&](const char* what) {
    fake.userDefaults.values = {{"Recommender Last Version", 119}, {"Other", "kept"}};
    start();
    check();
    const Value::Dictionary expected = {{"Recommender Last Version", 120}, {"Other", "kept"}};
    EXPECT_EQ(fake.userDefaults.values, expected) << what;
  };
  fake.urlLoading.answers[kAddress] = "<html>";
  run("no document");
  fake.urlLoading.answers.clear();
  run("no answer");
}

} // namespace
} // namespace wrenvale
