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

TEST_F(Launch, AsksTheHostForItsNameOnTheMainThread) {
  fake.application.strings[{"InfoPlist", "CFBundleName"}] = "Fotowerkzeug";
  start().launchHandler();
  fake.application.strings.clear();
  fake.queues.runAll();
  const auto& agent = fake.urlLoading.requests.at(0).headers.at(0).second;
  EXPECT_TRUE(agent.starts_with("Fotowerkzeug/120")) << agent;
}

// Its translator asks for the name while it is asked for it.
TEST_F(Launch, AHostMayAskForTheNameItIsAskedFor) {
  struct Asking final : platform::FakeApplication {
    using FakeApplication::FakeApplication;
    std::optional<std::string> localizedString(std::string_view, std::string_view) const override {
      if (service && !std::exchange(asked, true)) service->appName();
      return "Fotowerkzeug";
    }
    mutable bool asked = false;
    const Service* service = nullptr;
  } application(fake.system);
  const platform::Platform asking{fake.platform,      fake.queues.main, fake.queues.global,
                                  fake.queues.serial, application,      fake.windows,
                                  fake.menus};
  const Service host(asking, configuration());
  application.service = &host;
  EXPECT_EQ(host.appName(), "Fotowerkzeug");
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
