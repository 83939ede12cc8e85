#include <gtest/gtest.h>

#include "tests/core/ServiceFixture.h"

namespace wrenvale {
namespace {

class ServiceWelcome : public ServiceTest {
protected:
  Service& startLater() {
    fake.userDefaults.setObject(120, keys::kRecommenderLastVersion);
    return start();
  }

  /// Serves this document alone, with one application that has alert text.
  void serveAlert(const std::string& variant) {
    fake.urlLoading.answers.clear();
    serveRecommendations(variant,
                         {Value::Dictionary{{"bundle_id", "a"}, {"alert_text", "Try it"}}});
  }

  platform::FakeRecommenderWindow& window() { return fake.windows.recommenderWindow(); }
  std::size_t windows() const { return fake.windows.recommenderWindows.size(); }
  std::size_t fetches() const { return fake.urlLoading.requests.size(); }
};

TEST_F(ServiceWelcome, IsDueOnTheFirstRunAndWhenOwed) {
  const struct {
    Value lastVersion, owed;
    std::string document; ///< empty where it is not due
  } rows[] = {
      {{}, {}, "_F"},
      {{}, true, "_U"},
      {120, {}, ""},
      {119, true, "_U"},
      {119, Value::Array{true}, ""},
  };
  for (const auto& [lastVersion, owed, document] : rows) {
    fake.userDefaults.values.clear();
    fake.userDefaults.setObject(lastVersion, keys::kRecommenderLastVersion);
    fake.userDefaults.setObject(owed, keys::kShowUpdateWindow);
    fake.windows.recommenderWindows.clear();
    start();
    serveAlert(document);
    const bool due = !document.empty(), updating = document == "_U";
    EXPECT_EQ(service->triggerWelcomeWindow(), due);
    fake.queues.runAll();
    ASSERT_EQ(windows(), due ? 1U : 0U);
    if (!due) continue;
    auto& page = window();
    EXPECT_EQ(page.title, "Welcome to Photo Tool");
    EXPECT_FALSE(page.visible) << "until the page asks for it";
    page.startPage();
    EXPECT_EQ(page.call("updating"), Value(updating));
    page.call("showWindow");
    ASSERT_EQ(page.sheets.size(), 1U);
    const std::string deed = updating ? "updating" : "downloading";
    EXPECT_EQ(page.sheets.front().messageText, "Thank you for " + deed + " Photo Tool!");
  }
  EXPECT_EQ(fetches(), 3U);
}

TEST_F(ServiceWelcome, AnAnswerOfTheServerOpensItLater) {
  startLater();
  EXPECT_FALSE(service->triggerWelcomeWindow());
  serveReset();
  service->reset();
  fake.queues.runAll();
  ASSERT_EQ(windows(), 1U);
  window().startPage();
  EXPECT_EQ(window().call("updating"), Value(true));
}

TEST_F(ServiceWelcome, AnOpenWindowIsKept) {
  start().triggerWelcomeWindow();
  service->triggerWelcomeWindow();
  service->subscribeToNewsletter();
  fake.queues.runAll();
  EXPECT_EQ(windows(), 1U);
  EXPECT_EQ(fetches(), 2U) << "no new fetch for the window that is there";
  EXPECT_EQ(window().title, "Newsletter Subscription");
  EXPECT_EQ(window().broughtForward, 1);
  fake.userDefaults.setObject(true, keys::kShowUpdateWindow);
  window().pressClose();
  EXPECT_TRUE(stored(keys::kShowUpdateWindow).isNull()) << "it is a welcome window still";
}

TEST_F(ServiceWelcome, TheNewsletterWindowOwesNothing) {
  serveAlert("");
  startLater().subscribeToNewsletter();
  EXPECT_TRUE(window().visible && !window().webViewRevealed);
  EXPECT_EQ(fake.application.activations, 1);
  fake.queues.runAll();
  ASSERT_EQ(fetches(), 1U);
  EXPECT_EQ(fake.urlLoading.requests[0].url, "http://vendor.example/store/recommender_US_en.json");
  window().startPage();
  window().call("showWindow");
  EXPECT_EQ(window().call("updating"), Value(false));

  fake.userDefaults.setObject(true, keys::kShowUpdateWindow);
  EXPECT_TRUE(service->triggerWelcomeWindow());
  fake.queues.runAll();
  EXPECT_EQ(window().title, "Newsletter Subscription");
  window().call("setWidth:height", {640, 480});
  EXPECT_TRUE(window().sheets.empty());
  window().pressClose();
  EXPECT_EQ(stored(keys::kShowUpdateWindow), Value(true));
}

TEST_F(ServiceWelcome, TheEndSettlesTheDebtAndMakesRoom) {
  startLater();
  for (const bool seen : {true, false}) {
    fake.userDefaults.setObject(true, keys::kShowUpdateWindow);
    EXPECT_TRUE(service->triggerWelcomeWindow());
    auto& page = window();
    seen ? page.pressClose() : page.fail();
    EXPECT_TRUE(page.webViewClosed);
    EXPECT_TRUE(stored(keys::kShowUpdateWindow).isNull());
    EXPECT_FALSE(service->triggerWelcomeWindow());
  }
  EXPECT_EQ(windows(), 2U);
  fake.queues.runAll(); // lists for windows that are gone
}

TEST_F(ServiceWelcome, WithoutWindowsThereIsTheAnswerOnly) {
  struct : platform::FakeWindows {
    std::unique_ptr<platform::RecommenderWindow>
    makeRecommenderWindow(platform::RecommenderWindowDelegate&) override {
      throw std::bad_alloc();
    }
  } throwing;
  const platform::Platform bare{fake.platform,      fake.queues.main, fake.queues.global,
                                fake.queues.serial, fake.application, throwing,
                                fake.menus};
  fake.windows.hasScreen = false;
  for (const auto* platform : {&fake.platform, &bare}) {
    fake.userDefaults.setObject(true, keys::kShowUpdateWindow);
    Service alone(*platform, {});
    EXPECT_TRUE(alone.triggerWelcomeWindow());
    alone.subscribeToNewsletter();
    fake.queues.runAll();
    EXPECT_EQ(fetches(), 0U);
    EXPECT_EQ(stored(keys::kShowUpdateWindow), Value(true));
  }
}

} // namespace
} // namespace wrenvale
