// Fetching and publishing recommendations, around the decisions of recommend/.

#include <gmock/gmock.h>

#include "core/Recommendation.h"
#include "tests/core/ServiceFixture.h"

namespace wrenvale {
namespace {

class ServiceRecommend : public ServiceTest {
protected:
  ServiceRecommend() { answer({app("alpha", 2), app("beta", 1)}); }

  static Value app(const char* identifier, int points, Value dependency = {}) {
    return Value::Dictionary{{"bundle_id", identifier},
                             {"sp_icon", "icon.png"},
                             {"link", identifier},
                             {"priority_score", points},
                             {"dependency", std::move(dependency)}};
  }

  void answer(Value::Array apps, int build = 120) {
    serveRecommendations("_F", std::move(apps), build);
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

TEST_F(ServiceRecommend, NothingIsNotAnEmptyList) {
  start();
  EXPECT_EQ(list(), "alpha beta ");
  const auto& request = fake.urlLoading.requests.front();
  EXPECT_THAT(request.headers,
              testing::ElementsAre(testing::Pair("User-Agent", *service->userAgent())));
  const auto first = service->_getRecommendations()->front()->dictionaryRepresentation();
  EXPECT_EQ(first.at(2).second, Value("http://vendor.example/store/images/icon.png"));
  answer({app("alpha", 1)}, 119);
  EXPECT_EQ(list(), "nothing");
  answer({});
  EXPECT_EQ(list(), "");
  fake.json.documents.clear();
  EXPECT_EQ(list(), "nothing");
  fake.urlLoading.answers.clear();
  EXPECT_EQ(list(), "nothing");
}

TEST_F(ServiceRecommend, AsksTheHostForPurchases) {
  const Value::Dictionary unsold{{"bundle_id", "com.example.host"}, {"in_app_check", true}};
  answer({app("alpha", 2), app("beta", 1, Value::Array{unsold})});
  fake.installedApplications.identifiers = {"com.example.host"};
  start();
  const struct {
    std::function<bool()> record;
    Value purchases;
    bool sold;
  } rows[] = {
      {[] { return false; }, {}, false},
      {[] { return true; }, {}, true},
      {[]() -> bool { throw std::runtime_error("host"); }, {}, false},
      {[this] { return service->setPurchaseRecord({}), true; }, {}, true},
      {nullptr, Value::Array{}, false},
      {nullptr, Value::Array{"product"}, true},
  };
  for (const auto& row : rows) {
    service->setPurchaseRecord(row.record);
    fake.userDefaults.setObject(row.purchases, "Purchases");
    EXPECT_EQ(list(), row.sold ? "alpha beta " : "beta alpha ") << "row " << &row - rows;
  }
}

TEST_F(ServiceRecommend, TheFirstListIsKept) {
  fake.urlLoading.answers.clear();
  start().triggerWelcomeWindow();
  fake.queues.main.run();
  EXPECT_TRUE(fake.urlLoading.requests.empty()) << "in the background only";
  EXPECT_EQ(handedOver(), "0") << "a failed attempt leaves the next one its chance";
  answer({});
  service->triggerWelcomeWindow();
  EXPECT_EQ(handedOver(), "1: []");
  answer({app("alpha", 1)});
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
  EXPECT_TRUE(handedOver().starts_with("1: ")) << "the list that the window before asked for";
  EXPECT_TRUE(first->calls.empty());
}

} // namespace
} // namespace wrenvale
