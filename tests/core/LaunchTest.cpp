#include "tests/core/ServiceFixture.h"

namespace wrenvale {
namespace {

using A = Value::Array;
using D = Value::Dictionary;
using Launch = ServiceTest;

TEST_F(Launch, FilesOneRecordForABuildAfterAStoreRating) {
  const Value rated = A{D{{"History", A{0}}}, D{{"History", A{3}}}};
  const Value unrated = A{D{{"History", A{1, 0}}}, D{{"History", A{2, 4}}}};
  const Value filed = A{D{{"History", A{5}}, {"Triggered", false}, {"Date", fake.system.now()}}};
  const struct {
    Value before;
    bool files;
  } rows[] = {
      {D{{"100", unrated}, {"110", rated}}, true},
      {{}, false},
      {D{{"100", unrated}}, false},
      {D{{"100", rated}, {"120", A{}}}, false},
      {D{{"100", rated}, {"120", "odd"}}, false},
      {D{{"100", 3}, {"90", A{3, D{{"History", 3}}}}}, false},
      {A{rated}, false},
  };
  for (const auto& [before, files] : rows) {
    fake.userDefaults.setObject(before, keys::kVersionRatings);
    start().launchHandler();
    auto after = before.mutableDictionary();
    after["120"] = filed;
    EXPECT_EQ(stored(keys::kVersionRatings), files ? Value(after) : before);
  }
}

TEST_F(Launch, GoesOnWithoutTheFont) {
  start();
  EXPECT_TRUE(fake.userDefaults.values.empty()) << "creating the service only reads";
  fake.application.hasFonts = false;
  service->launchHandler();
  EXPECT_EQ(fake.application.fonts, std::vector<std::string>{"DroidSans-Regular.ttf"});
  EXPECT_EQ(fake.queues.global.size(), 1U) << "the reset check is under way";
}

} // namespace
} // namespace wrenvale
