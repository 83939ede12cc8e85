#include <stdexcept>

#include <gmock/gmock.h>

#include "tests/core/ServiceFixture.h"

namespace wrenvale {
namespace {

using platform::RateButton;
using testing::ElementsAre;
using D = Value::Dictionary;
using A = Value::Array;

class ServiceRating : public ServiceTest {
protected:
  ServiceRating() { start(); }

  platform::FakeRateWindow& window() { return fake.windows.rateWindow(); }
  std::size_t windowsMade() const { return fake.windows.rateWindows.size(); }
  Value records() const { return stored(keys::kVersionRatings).find("120"); }
  Value record(A history, bool triggered) const {
    return D{{"History", std::move(history)}, {"Triggered", triggered}, {"Date", begun}};
  }
  void forget() { fake.userDefaults.values.clear(); }

  /// Notes at each call what the session has left behind by then.
  Service::CompletitionHandler handler() {
    return [this] {
      ++handlerCalls;
      recordsAtCall = records().size();
      fadesAtCall = fake.windows.overlays.back()->alphas.size();
    };
  }

  int parentObject = 0;
  HostWindow* const parent = reinterpret_cast<HostWindow*>(&parentObject);
  const Date begun = fake.system.time;
  int handlerCalls = 0;
  std::size_t recordsAtCall = 0;
  std::size_t fadesAtCall = 0;
};

TEST_F(ServiceRating, AnyEntrySuppressesEveryTrigger) {
  const struct {
    const char* what;
    Value ratings;
    bool shown;
  } rows[] = {
      {"nothing", {}, true},
      {"an empty array", D{{"120", A{}}}, false},
      {"an odd entry", D{{"120", "odd"}}, false},
      {"other builds", D{{"119", A{}}, {"0120", A{}}}, true},
  };
  for (const auto& row : rows) {
    const auto fresh = [&] {
      start();
      fake.userDefaults.values = {{"Version Ratings", row.ratings}};
    };
    fresh();
    EXPECT_EQ(service->triggerRatingWithCompletitionHandler({}), row.shown) << row.what;
    fresh();
    EXPECT_EQ(service->triggerRatingWithWindow(parent, {}), row.shown) << row.what;
    fresh();
    EXPECT_EQ(service->triggerRatingWithWindow(nullptr, 0, {}), row.shown) << row.what;
    EXPECT_EQ(stored(keys::kVersionCounters), Value(D{{"120", 1}})) << row.what;
    fresh();
    EXPECT_EQ(service->triggerRatingWithModalAlert(), row.shown) << row.what;
  }
}

TEST_F(ServiceRating, TheCountedTriggerAsksAtOneCallOnly) {
  const struct {
    std::int64_t count;
    const char* shown; // for each of four calls
  } rows[] = {{-1, "...."}, {0, "#..."}, {2, "..#."}, {4, "...."}};
  for (const auto& row : rows) {
    forget();
    std::string shown;
    for (int call = 0; call < 4; ++call) {
      const bool asked = service->triggerRatingWithWindow(nullptr, row.count, {});
      shown += asked ? '#' : '.';
      if (asked) window().pressClose();
      fake.userDefaults.removeObjectForKey(keys::kVersionRatings);
    }
    EXPECT_EQ(shown, row.shown) << row.count;
    EXPECT_EQ(stored(keys::kVersionCounters), Value(D{{"120", 4}})) << row.count;
  }
}

TEST_F(ServiceRating, CountersAreReadBeforeAndWrittenAfterTheSession) {
  fake.windows.duringModal = [&] {
    EXPECT_TRUE(stored(keys::kVersionCounters).isNull());
    service->triggerRatingWithWindow(nullptr, 5, {});
    EXPECT_EQ(stored(keys::kVersionCounters), Value(D{{"120", 1}}));
  };
  EXPECT_TRUE(service->triggerRatingWithWindow(parent, 0, {}));
  EXPECT_EQ(stored(keys::kVersionCounters), Value(D{{"120", 1}}));
}

TEST_F(ServiceRating, AFreeStandingSessionFilesAsTriggered) {
  EXPECT_TRUE(service->triggerRatingWithCompletitionHandler(handler()));
  EXPECT_TRUE(window().visible);
  EXPECT_FALSE(window().modal);
  EXPECT_EQ(window().parent, nullptr);
  EXPECT_EQ(fake.application.activations, 1);
  EXPECT_TRUE(records().isNull());
  fake.system.advance(std::chrono::minutes(5));
  window().press(RateButton::kDislike);
  window().press(RateButton::kContact);
  EXPECT_THAT(fake.application.opened,
              ElementsAre("http://vendor.example/app_redirect/support_US_en/com.example.host"));
  EXPECT_EQ(records(), Value(A{record({2, 4}, true)}));
  EXPECT_EQ(handlerCalls, 1);
  EXPECT_EQ(recordsAtCall, 1U);
  EXPECT_FALSE(service->triggerRatingWithCompletitionHandler(handler()));
  EXPECT_EQ(handlerCalls, 1);
}

TEST_F(ServiceRating, ASessionOverAParentIsModalAndFilesAsNotTriggered) {
  bool modal = false;
  fake.windows.duringModal = [&] {
    modal = window().modal;
    window().press(RateButton::kLike);
    window().press(RateButton::kAppstore);
    EXPECT_FALSE(window().modal) << "closed before the run returns";
    EXPECT_EQ(handlerCalls, 1) << "within the modal run";
  };
  EXPECT_TRUE(service->triggerRatingWithWindow(parent, handler()));
  EXPECT_TRUE(modal);
  EXPECT_EQ(window().parent, parent);
  EXPECT_EQ(window().delegate, nullptr);
  EXPECT_THAT(fake.application.opened,
              ElementsAre("macappstore://store.example/us/app/id123456789?mt=12"));
  EXPECT_EQ(records(), Value(A{record({1, 3}, false)}));
  EXPECT_EQ(handlerCalls, 1);
  EXPECT_EQ(recordsAtCall, 1U);
  EXPECT_EQ(fadesAtCall, 2U);
}

TEST_F(ServiceRating, AnOpenWindowIsBroughtForwardAndTheSecondHandlerDropped) {
  int dropped = 0;
  service->rateApp();
  EXPECT_TRUE(service->triggerRatingWithWindow(parent, [&] { ++dropped; }));
  service->rateApp();
  EXPECT_EQ(windowsMade(), 1U);
  EXPECT_EQ(fake.windows.overlays.size(), 1U);
  EXPECT_EQ(window().broughtForward, 3);
  EXPECT_EQ(fake.application.activations, 3);
  window().pressClose();
  EXPECT_EQ(records(), Value(A{record({0}, true)})) << "marked by the trigger";
  EXPECT_EQ(dropped, 0);
}

TEST_F(ServiceRating, AHandlerMayAskAgain) {
  bool triggered = true;
  fake.windows.duringModal = [&] { window().pressClose(); };
  service->triggerRatingWithWindow(parent, [&] {
    triggered = service->triggerRatingWithCompletitionHandler({});
    service->rateApp();
  });
  EXPECT_FALSE(triggered);
  ASSERT_EQ(windowsMade(), 2U);
  EXPECT_TRUE(window().visible);
  EXPECT_EQ(fake.windows.rateWindows.front()->delegate, nullptr);
  EXPECT_EQ(records().size(), 1U);
  window().pressClose();
  EXPECT_EQ(records().size(), 2U);
}

TEST_F(ServiceRating, RoughEndsLeaveOneRecordAndNoWindow) {
  const struct {
    const char* what;
    std::function<void()> duringModal;
  } rows[] = {
      {"the parent goes", [&] { fake.windows.deleteParent(parent); }},
      {"closed twice", [&] { window().pressClose(), window().pressClose(); }},
      {"the host quits", [] {}},
  };
  for (const auto& row : rows) {
    forget();
    handlerCalls = 0;
    fake.windows.duringModal = row.duringModal;
    EXPECT_TRUE(service->triggerRatingWithWindow(parent, handler())) << row.what;
    EXPECT_EQ(records(), Value(A{record({0}, false)})) << row.what;
    EXPECT_EQ(handlerCalls, 1) << row.what;
    EXPECT_EQ(window().delegate, nullptr) << row.what;
    forget();
    EXPECT_TRUE(service->triggerRatingWithCompletitionHandler({})) << row.what;
    window().pressClose();
  }
}

TEST_F(ServiceRating, AThrowingHandlerEndsTheSessionCleanly) {
  fake.windows.duringModal = [&] {
    EXPECT_TRUE(service->triggerRatingWithCompletitionHandler({})) << "marks the open one";
    window().pressClose();
  };
  EXPECT_TRUE(service->triggerRatingWithWindow(parent, [] { throw std::runtime_error("host"); }));
  EXPECT_EQ(records(), Value(A{record({0}, true)}));
  EXPECT_EQ(window().delegate, nullptr);
  forget();
  EXPECT_TRUE(service->triggerRatingWithCompletitionHandler({})) << "no session is left behind";
}

TEST_F(ServiceRating, TheParentIsDimmedUntilTheLastFadeArrives) {
  service->triggerRatingWithWindow(parent, {});
  const auto& overlay = *fake.windows.overlays.back();
  EXPECT_EQ(overlay.parent, parent);
  EXPECT_THAT(overlay.alphas, ElementsAre(0.3, 0.3));
  fake.queues.runAll();
  EXPECT_TRUE(overlay.present);
  fake.windows.overlays.back()->finish();
  EXPECT_TRUE(overlay.present) << "not within its own call";
  fake.queues.runAll();
  EXPECT_FALSE(overlay.present);
}

TEST_F(ServiceRating, WithoutAScreenNothingIsAskedOrFiled) {
  fake.windows.hasScreen = false;
  EXPECT_FALSE(service->triggerRatingWithWindow(parent, handler()));
  service->rateApp();
  EXPECT_TRUE(fake.userDefaults.values.empty());
  EXPECT_EQ(handlerCalls, 0);
  EXPECT_FALSE(fake.windows.overlays.front()->present);
  fake.windows.hasScreen = true;
  EXPECT_TRUE(service->triggerRatingWithCompletitionHandler(handler()));
}

TEST_F(ServiceRating, TheAlertFilesItsAnswer) {
  const std::string store = "macappstore://store.example/us/app/id123456789?mt=12";
  const struct {
    int answer;
    A history;
    std::vector<std::string> opened;
  } rows[] = {{platform::kAlertDefaultReturn, {3}, {store}},
              {platform::kAlertAlternateReturn, {0}, {}},
              {platform::kAlertOtherReturn, {0}, {}},
              {1000, {0}, {}}};
  for (const auto& row : rows) {
    forget();
    fake.system.time = begun - std::chrono::hours(1);
    fake.application.opened.clear();
    fake.windows.answer = row.answer;
    fake.windows.duringAlert = [&] {
      EXPECT_EQ(fake.userDefaults.durable(), D({{"Rate Version", "120"}})) << row.answer;
      EXPECT_FALSE(service->triggerRatingWithModalAlert()) << "one alert at a time";
      fake.system.time = begun;
    };
    EXPECT_TRUE(service->triggerRatingWithModalAlert()) << row.answer;
    EXPECT_EQ(records(), Value(A{record(row.history, true)})) << row.answer;
    EXPECT_EQ(fake.application.opened, row.opened) << row.answer;
  }
  EXPECT_EQ(fake.windows.alerts.size(), std::size(rows));
  EXPECT_EQ(fake.application.activations, static_cast<int>(std::size(rows)));
}

TEST_F(ServiceRating, WhatCannotBeShownOrKeptIsNotAsked) {
  fake.windows.hasScreen = false;
  EXPECT_FALSE(service->triggerRatingWithModalAlert());
  EXPECT_TRUE(fake.userDefaults.values.empty());
  fake.windows.hasScreen = true;
  fake.info.erase("CFBundleIdentifier");
  start();
  EXPECT_FALSE(service->triggerRatingWithModalAlert());
  EXPECT_FALSE(service->triggerRatingWithCompletitionHandler({}));
  EXPECT_FALSE(service->triggerWelcomeWindow()) << "no run of it is the first";
}

TEST_F(ServiceRating, TheAlertSpeaksEnglishWithTheUntranslatedName) {
  fake.application.strings[{"InfoPlist", "CFBundleName"}] = "Fotowerkzeug";
  service->triggerRatingWithModalAlert();
  const auto& alert = fake.windows.alerts.back();
  EXPECT_EQ(alert.title, "Photo Tool");
  EXPECT_EQ(alert.messageText, "Please take a minute to rate Photo Tool!");
  EXPECT_EQ(alert.informativeText,
            "Ratings and feedback will help us to improve Photo Tool. This message won't show up "
            "again, but you can rate Photo Tool easily any time from the Help menu.");
  EXPECT_EQ(alert.defaultButton, "Rate Photo Tool on Appstore");
  EXPECT_EQ(alert.alternateButton, "No thanks");
  EXPECT_EQ(alert.otherButton, std::nullopt);

  forget();
  fake.info.erase("CFBundleName");
  service->triggerRatingWithModalAlert();
  EXPECT_EQ(fake.windows.alerts.back().defaultButton, "Rate (null) on Appstore");
}

} // namespace
} // namespace wrenvale
