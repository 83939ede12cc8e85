#include "tests/core/ServiceFixture.h"

namespace wrenvale {
namespace {

Value record(std::initializer_list<int> history) {
  return Value::Dictionary{{"History", Value::Array(history.begin(), history.end())}};
}

class Launch : public ServiceTest {
protected:
  // What a launch leaves under "Version Ratings" that held `before`.
  Value ratingsAfter(Value before) {
    fake.userDefaults.setObject(std::move(before), keys::kVersionRatings);
    start().launchHandler();
    return stored(keys::kVersionRatings);
  }
};

TEST_F(Launch, FilesOneRecordForABuildAfterAStoreRating) {
  const Value before = Value::Dictionary{{"100", Value::Array{record({0}), record({1, 3})}},
                                         {"110", Value::Array{record({3})}}};
  const Value after = ratingsAfter(before);
  const Value expected = Value::Dictionary{
      {"History", Value::Array{5}}, {"Triggered", false}, {"Date", fake.system.now()}};
  EXPECT_EQ(after.find("120"), Value(Value::Array{expected}));
  EXPECT_EQ(after.find("100"), before.find("100"));
  EXPECT_EQ(after.find("110"), before.find("110"));
}

TEST_F(Launch, LeavesTheRatingsAloneOtherwise) {
  const Value rated = Value::Array{record({3})};
  const Value rows[] = {
      {}, // no ratings
      Value::Dictionary{
          {"100", Value::Array{record({1, 0}), record({2, 4})}}}, // never in the store
      Value::Dictionary{{"100", rated}, {"120", Value::Array{}}}, // entry already there
      Value::Dictionary{{"100", rated}, {"120", "odd"}},
      Value::Dictionary{{"100", 3}, {"90", Value::Array{3, Value::Dictionary{{"History", 3}}}}},
      Value::Array{rated},
      "3",
  };
  for (const auto& before : rows)
    EXPECT_EQ(ratingsAfter(before), before);
}

TEST_F(Launch, BeginsTheResetCheckEvenWithoutTheFont) {
  fake.application.hasFonts = false;
  start();
  EXPECT_TRUE(fake.userDefaults.values.empty()) << "creating the service only reads";
  EXPECT_EQ(fake.queues.global.size() + fake.queues.main.size() + fake.queues.serial.size(), 0U);
  service->launchHandler();
  EXPECT_EQ(fake.application.fonts, std::vector<std::string>{"DroidSans-Regular.ttf"});
  EXPECT_EQ(fake.queues.global.size(), 1U);
}

} // namespace
} // namespace wrenvale
