#include <stdexcept>

#include <gmock/gmock.h>

#include "tests/core/ServiceFixture.h"

namespace wrenvale {
namespace {

using platform::RateButton;
using testing::ElementsAre;
using D = Value::Dictionary;
using A = Value::Array;

constexpr auto kStore = "macappstore://store.example/us/app/id123456789?mt=12";

class ServiceRating : public ServiceTest {
protected:
  ServiceRating() { start(); }

  platform::FakeRateWindow& window() { return fake.windows.rateWindow(); }
  std::size_t windowsMade() const { return fake.windows.rateWindows.size(); }
  Value records() const { return stored(keys::kVersionRatings).find("120"); }
  Value record(A history, bool triggered) const {
    return D{{"History", std::move(history)}, {"Triggered", triggered}, {"Date", begun}};
  }
  Value counted(int calls) const { return D{{"120", calls}}; }
  void forget() { fake.userDefaults.values.clear(); }

  /// Finds at its call that the session is over and on file.
  Service::CompletitionHandler handler() {
    return [this] {
      ++handlerCalls;
      EXPECT_EQ(records().size(), 1U);
      EXPECT_EQ(fake.windows.overlays.back()->alphas.size(), 2U);
    };
  }

  int parentObject = 0;
  HostWindow* const parent = reinterpret_cast<HostWindow*>(&parentObject);
  const Date begun = fake.system.time;
  int handlerCalls = 0;
};

TEST_F(ServiceRating, AnyEntrySuppressesEveryTrigger) {
  const std::pair<Value, bool> rows[] = {{{}, true},
                                         {D{{"120", A{}}}, false},
                                         {D{{"119", A{}}, {"0120", A{}}}, true},
                                         {A{"120"}, true}};
  for (const auto& [ratings, shown] : rows) {
    const auto fresh = [&, &ratings = ratings]() -> Service& {
      fake.userDefaults.values = {{"Version Ratings", ratings}};
      return start();
    };
    EXPECT_EQ(fresh().triggerRatingWithCompletitionHandler({}), shown);
    EXPECT_EQ(fresh().triggerRatingWithWindow(parent, {}), shown);
    EXPECT_EQ(fresh().triggerRatingWithWindow(nullptr, 0, {}), shown);
    EXPECT_EQ(stored(keys::kVersionCounters), counted(1));
    EXPECT_EQ(fresh().triggerRatingWithModalAlert(), shown);
  }
}

TEST_F(ServiceRating, TheCountedTriggerAsksAtOneCallOnly) {
  const std::pair<int, const char*> rows[] = {{-1, "...."}, {0, "#..."}, {2, "..#."}, {4, "...."}};
  for (const auto& [count, expected] : rows) {
    forget();
    std::string shown;
    for (int call = 0; call < 4; ++call) {
      const bool asked = service->triggerRatingWithWindow(nullptr, count, {});
      shown += asked ? '#' : '.';
      if (asked) window().pressClose();
      fake.userDefaults.removeObjectForKey(keys::kVersionRatings);
    }
    EXPECT_EQ(shown, expected) << count;
    EXPECT_EQ(stored(keys::kVersionCounters), counted(4)) << count;
  }
}

TEST_F(ServiceRating, ATriggerWithinAModalSessionMarksItAndIsNotCountedTwice) {
  fake.windows.duringModal = [&] {
    EXPECT_TRUE(stored(keys::kVersionCounters).isNull());
    service->triggerRatingWithWindow(nullptr, 5, {});
    EXPECT_EQ(stored(keys::kVersionCounters), counted(1));
    EXPECT_TRUE(service->triggerRatingWithCompletitionHandler([] { ADD_FAILURE() << "dropped"; }));
    window().pressClose();
  };
  EXPECT_TRUE(service->triggerRatingWithWindow(parent, 0, handler()));
  EXPECT_EQ(stored(keys::kVersionCounters), counted(1));
  EXPECT_EQ(records(), Value(A{record({0}, true)}));
  EXPECT_EQ(handlerCalls, 1);
}

TEST_F(ServiceRating, AFreeStandingSessionFilesAsTriggered) {
  EXPECT_TRUE(service->triggerRatingWithCompletitionHandler(handler()));
  EXPECT_TRUE(window().visible && !window().modal && records().isNull());
  EXPECT_EQ(fake.application.activations, 1);
  fake.system.advance(std::chrono::minutes(5));
  window().press(RateButton::kDislike);
  window().press(RateButton::kContact);
  EXPECT_THAT(fake.application.opened,
              ElementsAre("http://vendor.example/app_redirect/support_US_en/com.example.host"));
  EXPECT_EQ(records(), Value(A{record({2, 4}, true)}));
  EXPECT_FALSE(service->triggerRatingWithCompletitionHandler(handler()));
  EXPECT_EQ(handlerCalls, 1);
}

TEST_F(ServiceRating, ASessionOverAParentIsModalDimsItAndFilesAsNotTriggered) {
  fake.windows.duringModal = [&] {
    EXPECT_TRUE(window().modal);
    window().press(RateButton::kLike);
    window().press(RateButton::kAppstore);
    EXPECT_FALSE(window().visible || window().modal) << "closed before the run returns";
    EXPECT_EQ(handlerCalls, 1) << "within the modal run";
  };
  EXPECT_TRUE(service->triggerRatingWithWindow(parent, handler()));
  EXPECT_EQ(window().parent, parent);
  EXPECT_THAT(fake.application.opened, ElementsAre(kStore));
  EXPECT_EQ(records(), Value(A{record({1, 3}, false)}));

  const auto& overlay = *fake.windows.overlays.back();
  EXPECT_EQ(overlay.parent, parent);
  EXPECT_THAT(overlay.alphas, ElementsAre(0.3, 0.3));
  fake.windows.overlays.back()->finish();
  EXPECT_TRUE(overlay.present) << "not within its own call";
  fake.queues.runAll();
  EXPECT_FALSE(overlay.present);
}

TEST_F(ServiceRating, AnOpenWindowIsBroughtForwardAndTheSecondHandlerDropped) {
  service->rateApp();
  EXPECT_TRUE(service->triggerRatingWithWindow(parent, [] { ADD_FAILURE() << "dropped"; }));
  service->rateApp();
  EXPECT_EQ(windowsMade(), 1U);
  EXPECT_EQ(window().broughtForward, 3);
  EXPECT_EQ(fake.application.activations, 3);
  window().pressClose();
  EXPECT_EQ(records(), Value(A{record({0}, true)})) << "marked by the trigger";
}

TEST_F(ServiceRating, AHandlerMayRunAModalSessionOfItsOwnAndAskAgain) {
  fake.windows.duringModal = [&] { window().press(RateButton::kLike), window().pressClose(); };
  service->triggerRatingWithWindow(parent, [&] {
    forget();
    fake.windows.duringModal = [&] { window().pressClose(); };
    EXPECT_TRUE(service->triggerRatingWithWindow(parent, [&] {
      EXPECT_FALSE(service->triggerRatingWithCompletitionHandler({}));
      service->rateApp();
    }));
  });
  ASSERT_EQ(windowsMade(), 3U);
  EXPECT_TRUE(window().visible);
  EXPECT_EQ(fake.windows.rateWindows[1]->delegate, nullptr);
  EXPECT_EQ(records(), Value(A{record({0}, false)}));
}

TEST_F(ServiceRating, RoughEndsLeaveOneRecordAndNoWindow) {
  const std::function<void()> rows[] = {
      [&] { fake.windows.deleteParent(parent); },
      [&] { window().pressClose(), window().pressClose(); }, [] {}, // the host quits
  };
  for (const auto& duringModal : rows) {
    forget();
    fake.windows.duringModal = duringModal;
    EXPECT_TRUE(service->triggerRatingWithWindow(parent, [this] {
      handler()();
      throw std::runtime_error("host");
    }));
    EXPECT_EQ(records(), Value(A{record({0}, false)}));
    EXPECT_EQ(std::exchange(handlerCalls, 0), 1);
    EXPECT_EQ(window().delegate, nullptr);
    forget();
    EXPECT_TRUE(service->triggerRatingWithCompletitionHandler({})) << "no session is left behind";
    window().pressClose();
  }
}

TEST_F(ServiceRating, TheAlertFilesItsAnswer) {
  fake.application.strings[{"InfoPlist", "CFBundleName"}] = "Fotowerkzeug"; // it speaks English
  const struct {
    int answer;
    A history;
    std::vector<std::string> opened;
  } rows[] = {{platform::kAlertDefaultReturn, {3}, {kStore}},
              {platform::kAlertAlternateReturn, {0}, {}},
              {platform::kAlertOtherReturn, {0}, {}}};
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
  EXPECT_EQ(fake.application.activations, 3);
  const auto& alert = fake.windows.alerts.back();
  EXPECT_EQ(alert.title + "/" + alert.messageText + "/" + alert.defaultButton,
            "Photo Tool/Please take a minute to rate Photo Tool!/Rate Photo Tool on Appstore");
}

TEST_F(ServiceRating, WhatCannotBeShownOrKeptIsNotAsked) {
  fake.windows.hasScreen = false;
  EXPECT_FALSE(service->triggerRatingWithWindow(parent, handler()));
  service->rateApp();
  EXPECT_FALSE(service->triggerRatingWithModalAlert());
  EXPECT_TRUE(fake.userDefaults.values.empty());
  EXPECT_EQ(handlerCalls, 0);
  EXPECT_FALSE(fake.windows.overlays.front()->present);
  fake.windows.hasScreen = true;
  EXPECT_TRUE(service->triggerRatingWithCompletitionHandler({}));

  fake.userDefaults.unreadable = true;
  for (const auto& identifier : {Value("com.example.host"), Value()}) {
    fake.info["CFBundleIdentifier"] = identifier;
    forget();
    start();
    EXPECT_FALSE(service->triggerRatingWithModalAlert());
    EXPECT_FALSE(service->triggerRatingWithCompletitionHandler({}));
    EXPECT_FALSE(service->triggerWelcomeWindow()) << "no run of it is the first";
    fake.userDefaults.unreadable = false;
  }
}

} // namespace
} // namespace wrenvale
