#include "welcome/KVXRecommenderWindowController.h"

#include <gtest/gtest.h>

#include "tests/welcome/WelcomeFixture.h"

namespace wrenvale {
namespace {

using platform::NavigationType;
using platform::PolicyDecision;

TEST_F(WelcomeTest, LoadsThePageHidden) {
  fake.info["Appstore ID"] = "a b";
  const auto& page = open();
  ASSERT_EQ(page.requests.size(), 1U);
  EXPECT_EQ(page.requests[0].url, "http://vendor.example/store/newsletter/index_US.html");
  EXPECT_EQ(page.requests[0].timeout.count(), 60);
  EXPECT_EQ(page.requests[0].applicationName, "Photo%20Tool/120 a%20b");
  EXPECT_FALSE(page.visible || page.webViewRevealed);
}

TEST_F(WelcomeTest, GivesItsObjectToThePagesThatMayHaveIt) {
  for (const bool isVendors : {false, true}) {
    auto configured = configuration();
    configured.bridgeIsVendors = isVendors;
    endpoints = Endpoints(configured);
    auto& page = open();
    EXPECT_TRUE(page.call("ready"));
    for (const char* other : {"https://vendor.example", "http://other.example", ""}) {
      page.startPage(other);
      EXPECT_EQ(page.call("ready").has_value(), !isVendors) << other;
    }
  }
}

// One letter a step: p(age loads anew), r(eady), t(urn of the main queue), c(lose of the web view);
// a(bsent list), e(mpty list), l(ist), f(ull list, with alert text); s(how), w(idth), n(ewsletter
// mode), m (welcome mode).
TEST_F(WelcomeTest, HandsTheListOverOnceAndAlertsAtTheFirstMomentThatItMay) {
  const struct {
    const char* steps;
    std::size_t lists, alerts;
  } rows[] = {
      {"rt", 0, 0},   {"lr", 0, 0},     {"rlt", 1, 0},      {"lrt", 1, 0},   {"rtlt", 1, 0},
      {"lrct", 0, 0}, {"lrtrtt", 1, 0}, {"lrtprtlt", 1, 0}, {"ret", 1, 0},   {"ratlt", 1, 0},
      {"lret", 1, 0}, {"f", 0, 0},      {"fs", 0, 1},       {"fw", 0, 0},    {"fws", 0, 1},
      {"slf", 0, 1},  {"fswwff", 0, 1}, {"nfsw", 0, 0},     {"nfsmw", 0, 1},
  };
  for (const auto& row : rows) {
    auto& page = open();
    const auto list = [&](RecommendationList list) { controller->setRecommendations(list); };
    for (const char step : std::string_view(row.steps)) {
      if (step == 'p') page.startPage();
      if (step == 'r') page.call("ready");
      if (step == 't') fake.queues.main.run();
      if (step == 'c') controller->cleanup();
      if (step == 'a') controller->setRecommendations({});
      if (step == 'e') list({});
      if (step == 'l') list({recommendation("Alpha")});
      if (step == 'f') list({recommendation("Alpha", "Try it")});
      if (step == 's') page.call("showWindow");
      if (step == 'w') page.call("setWidth:height", {640, 480});
      if (step == 'n') controller->setDisplayAlerts(false);
      if (step == 'm') controller->setDisplayAlerts(true);
    }
    EXPECT_EQ(page.calls.size(), row.lists) << row.steps;
    EXPECT_EQ(page.sheets.size(), row.alerts) << row.steps;
    fake.queues.main.run();
  }
}

TEST_F(WelcomeTest, TheFirstAlertOfTheListLeadsToItsApplication) {
  fake.application.strings = {{{"Wrenvale", "Cancel"}, "Abbrechen"}, {{"Other", "Ok"}, "Gut"}};
  const auto full = recommendation("a", "100 %@", "Get it", "http://alert", "http://link");
  const auto link = recommendation("a", "100 %@", {}, {}, "http://link");
  const struct {
    std::shared_ptr<const Recommendation> record;
    int answer;
    std::string button;
    std::vector<std::string> opened;
  } rows[] = {
      {full, 1, "Get it", {"http://alert"}},
      {full, 0, "Get it", {}},
      {link, -1, "Ok", {"http://link"}},
      {recommendation("a", "100 %@"), 1, "Ok", {}},
  };
  for (const auto& row : rows) {
    fake.application.opened.clear();
    auto& page = open();
    page.call("showWindow");
    controller->setRecommendations(
        RecommendationList{recommendation("first"), row.record, recommendation("last", "last")});
    ASSERT_EQ(page.sheets.size(), 1U);
    const auto& alert = page.sheets.front();
    EXPECT_EQ(alert.defaultButton, row.button);
    EXPECT_EQ(alert.informativeText + *alert.alternateButton, "100 %@Abbrechen");
    controller->setRecommendations({}); // the sheet keeps its own record
    page.answerSheet(row.answer);
    EXPECT_EQ(fake.application.opened, row.opened) << "row " << &row - rows;
  }
  EXPECT_EQ(fake.application.beeps, 1) << "for want of a link";
}

TEST_F(WelcomeTest, ClickedLinksLeaveForTheBrowser) {
  using enum NavigationType;
  const std::string maker = "http://vendor.example";
  const struct {
    std::string mainDocumentURL;
    NavigationType type;
    PolicyDecision decision;
  } rows[] = {
      {maker, kOther, PolicyDecision::kUse},
      {maker, kLinkClicked, PolicyDecision::kNone},
      {maker, kFormSubmitted, PolicyDecision::kIgnore},
      {maker, NavigationType(6), PolicyDecision::kIgnore},
      {"about:blank", kLinkClicked, PolicyDecision::kUse},
      {"about:blank#", kReload, PolicyDecision::kIgnore},
      {"", kLinkClicked, PolicyDecision::kNone},
  };
  auto& page = open();
  for (const auto& [document, type, decision] : rows) {
    fake.application.opened.clear();
    const platform::NavigationAction action{
        .url = "http://to.example/?a b", .mainDocumentURL = document, .type = type};
    EXPECT_EQ(page.navigate(action), decision) << document;
    const std::size_t opened = decision == PolicyDecision::kNone ? 1 : 0;
    EXPECT_EQ(fake.application.opened, std::vector(opened, action.url)) << document;
  }
}

TEST_F(WelcomeTest, AFailedPageClosesTheWindow) {
  auto& hidden = open();
  hidden.fail(false);
  EXPECT_EQ(delegate->finished, 0);
  hidden.fail();
  EXPECT_EQ(delegate->finished, 1);
  EXPECT_TRUE(hidden.sheets.empty() && hidden.webViewClosed && !hidden.delegate);

  auto& shown = open();
  shown.call("showWindow");
  shown.fail(false);
  EXPECT_TRUE(shown.sheets.empty());
  shown.fail();
  shown.fail();
  ASSERT_EQ(shown.sheets.size(), 1U);
  EXPECT_EQ(shown.sheets[0].messageText, "The page did not load.");
  EXPECT_EQ(delegate->finished, 1);
  EXPECT_TRUE(shown.answerSheet());
  EXPECT_EQ(delegate->finished, 2);
  EXPECT_FALSE(shown.visible);
}

// The desktop closes the window in the middle of a call of the page's.
TEST_F(WelcomeTest, MayBeClosedFromInsideABridgeCall) {
  auto& page = open();
  page.whenShown = [&] { page.pressClose(); };
  EXPECT_TRUE(page.call("showWindow"));
  EXPECT_EQ(delegate->finished, 1);
  EXPECT_EQ(controller, nullptr);
}

// The controller goes while something of its own is still under way.
TEST_F(WelcomeTest, OutlivesNothingAndHarmsNothing) {
  const std::function<void(platform::FakeRecommenderWindow&)> rows[] = {
      [](auto&) {},                                           // the page loading
      [](auto& page) { page.call("ready"); },                 // a hand-over
      [](auto& page) { page.call("subscribe", {"no one"}); }, // a sheet
      [](auto& page) { page.call("showWindow"), page.fail(); },
      [](auto& page) { page.call("subscribe", {"a@b.de"}); }, // a delivery
  };
  for (const auto& before : rows) {
    auto& page = open();
    controller->setRecommendations(RecommendationList{recommendation("Alpha", "Try it")});
    before(page);
    const auto handlers = page.handlers; // of a platform that answers sheets late
    delegate->finished = 0;
    page.pressClose();
    EXPECT_EQ(controller, nullptr);
    for (const auto& handler : handlers)
      handler(platform::kAlertDefaultReturn);
    page.call("showWindow");
    page.fail();
    page.pressClose();
    fake.queues.runAll();
    EXPECT_EQ(delegate->finished, 1) << &before - rows;
    EXPECT_TRUE(page.calls.empty() && !page.visible) << &before - rows;
  }
}

} // namespace
} // namespace wrenvale
