// Fetching and publishing recommendations, around the decisions of recommend/.

#include <gmock/gmock.h>

#include "core/Recommendation.h"
#include "tests/core/ServiceFixture.h"

namespace wrenvale {
namespace {

constexpr const char* kAddress = "http://vendor.example/store/recommender_US_en_F.json";

class ServiceRecommend : public ServiceTest {
protected:
  ServiceRecommend() { answer(document(120, {app("alpha", 2), app("beta", 1)})); }

  static Value app(const char* identifier, int points) {
    return Value::Dictionary{{"bundle_id", identifier},
                             {"sp_icon", "icon.png"},
                             {"link", identifier},
                             {"priority_score", points}};
  }

  static Value document(int build, Value::Array apps) {
    const Value::Dictionary host{{"bundle_id", "com.example.host"}, {"build_number", build}};
    return Value::Dictionary{
        {"options", Value::Dictionary{{"stable_versions", Value::Array{host}}}},
        {"apps", std::move(apps)}};
  }

  void answer(Value document) {
    fake.urlLoading.answers[kAddress] = "the document";
    fake.json.documents["the document"] = std::move(document);
  }

  /// The identifiers of the list in order, or "nothing".
  std::string list() {
    const auto list = service->_getRecommendations();
    std::string result = list ? "" : "nothing";
    for (const auto& each : list.value_or(RecommendationList()))
      result += each->link().value_or("?") + " ";
    return result;
  }

  /// How often the page of the window was given a list, and the last of them.
  std::string handedOver() {
    window().startPage();
    window().call("ready");
    fake.queues.runAll();
    const auto& calls = window().calls;
    return std::to_string(calls.size()) +
           (calls.empty() ? "" : ": " + *calls.back().second.front().string());
  }

  platform::FakeRecommenderWindow& window() { return fake.windows.recommenderWindow(); }
};

TEST_F(ServiceRecommend, FetchesAsTheHost) {
  start();
  EXPECT_EQ(list(), "alpha beta ");
  ASSERT_EQ(fake.urlLoading.requests.size(), 1U);
  EXPECT_THAT(fake.urlLoading.requests.front().headers,
              testing::ElementsAre(testing::Pair("User-Agent", *service->userAgent())));
  const auto first = service->_getRecommendations()->front()->dictionaryRepresentation();
  EXPECT_THAT(first, testing::Contains(testing::Pair(
                         "iconURL", Value("http://vendor.example/store/images/icon.png"))));
}

TEST_F(ServiceRecommend, NothingIsNotAnEmptyList) {
  start();
  answer(document(119, {app("alpha", 1)}));
  EXPECT_EQ(list(), "nothing");
  answer(document(120, {}));
  EXPECT_EQ(list(), "");
  answer(Value::Dictionary());
  EXPECT_EQ(list(), "nothing");
  fake.urlLoading.answers[kAddress] = "<html>";
  EXPECT_EQ(list(), "nothing");
  fake.urlLoading.answers.clear();
  EXPECT_EQ(list(), "nothing");
}

TEST_F(ServiceRecommend, AsksTheHostForPurchases) {
  const Value::Dictionary unsold{{"bundle_id", "com.example.host"}, {"in_app_check", true}};
  auto beta = app("beta", 1).mutableDictionary();
  beta["dependency"] = Value::Array{unsold};
  answer(document(120, {app("alpha", 2), beta}));
  fake.installedApplications.identifiers = {"com.example.host"};
  start();
  const struct {
    const char* what;
    std::function<bool()> record;
    Value purchases;
    bool sold;
  } rows[] = {
      {"no", [] { return false; }, {}, false},
      {"yes", [] { return true; }, {}, true},
      {"throws", []() -> bool { throw std::runtime_error("host"); }, {}, false},
      {"sets another one",
       [this] {
         service->setPurchaseRecord([] { return false; });
         return true;
       },
       {},
       true},
      {"on the host's list", nullptr, Value::Array{"product"}, true},
      {"no list", nullptr, "product", false},
  };
  for (const auto& row : rows) {
    service->setPurchaseRecord(row.record);
    fake.userDefaults.setObject(row.purchases, "Purchases");
    EXPECT_EQ(list(), row.sold ? "alpha beta " : "beta alpha ") << row.what;
  }
}

TEST_F(ServiceRecommend, TheFirstListIsKept) {
  fake.urlLoading.answers.clear();
  start().triggerWelcomeWindow();
  fake.queues.main.run();
  EXPECT_TRUE(fake.urlLoading.requests.empty()) << "in the background only";
  EXPECT_EQ(handedOver(), "0") << "a failed attempt leaves the next one its chance";
  answer(document(120, {}));
  service->triggerWelcomeWindow();
  EXPECT_EQ(handedOver(), "1: []");
  answer(document(120, {app("alpha", 1)}));
  service->triggerWelcomeWindow();
  EXPECT_EQ(handedOver(), "1: []");
  EXPECT_EQ(fake.urlLoading.requests.size(), 3U);
}

TEST_F(ServiceRecommend, PublishesToTheWindowOfThatMoment) {
  start().triggerWelcomeWindow();
  fake.queues.serial.run();
  const auto first = fake.windows.recommenderWindows.back();
  first->pressClose();
  fake.queues.main.run(); // to nobody

  service->triggerWelcomeWindow();
  fake.queues.serial.run();
  window().pressClose();
  service->subscribeToNewsletter();
  window().startPage();
  window().call("ready");
  fake.queues.main.run();
  EXPECT_EQ(window().calls.size(), 1U) << "asked for by the window before";
  fake.queues.runAll();
  EXPECT_EQ(window().calls.size(), 1U);
  EXPECT_TRUE(first->calls.empty());
}

} // namespace
} // namespace wrenvale
