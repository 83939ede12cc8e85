#include "welcome/KVXRecommenderWindowController.h"

#include <gtest/gtest.h>

#include "tests/welcome/WelcomeFixture.h"

namespace wrenvale {
namespace {

using platform::NavigationType;
using platform::PolicyDecision;

TEST_F(WelcomeTest, LoadsThePageHidden) {
  const struct {
    std::optional<std::string> country;
    Value appstoreID;
    std::string address, agent;
  } rows[] = {
      {"US", 123456789, "index_US.html", "Photo%20Tool/120 123456789"},
      {"ch", {}, "index_ch.html", "Photo%20Tool/120 (null)"},
      {{}, "a b", "index_EN.html", "Photo%20Tool/120 a%20b"},
  };
  for (const auto& row : rows) {
    fake.locale.country = row.country;
    fake.info["Appstore ID"] = row.appstoreID;
    const auto& page = open();
    ASSERT_EQ(page.requests.size(), 1U);
    const auto& request = page.requests.front();
    EXPECT_EQ(request.url, "http://vendor.example/store/newsletter/" + row.address);
    EXPECT_EQ(request.timeout.count(), 60);
    EXPECT_EQ(request.applicationName, row.agent);
    EXPECT_FALSE(page.visible || page.webViewRevealed);
  }
}

// As configured, of whatever origin a page is, or the maker's only.
TEST_F(WelcomeTest, GivesItsObjectToThePagesThatMayHaveIt) {
  const struct {
    const char* origin;
    bool mayInGeneral, mayAsVendors;
  } rows[] = {
      {"http://vendor.example/", true, true},
      {"https://vendor.example", true, false},
      {"http://other.example", true, false},
      {"", true, false},
  };
  for (const bool isVendors : {false, true}) {
    endpoints = Endpoints({.vendorBase = "http://vendor.example",
                           .storeHost = {},
                           .publicKey = {},
                           .vendorSiteName = {},
                           .bridgeIsVendors = isVendors});
    auto& page = open();
    for (const auto& row : rows) {
      page.startPage(row.origin);
      EXPECT_EQ(page.call("ready").has_value(), isVendors ? row.mayAsVendors : row.mayInGeneral)
          << row.origin << (isVendors ? " as configured for the vendor's" : "");
    }
  }
}

// One letter a step: l(oad of the page), r(eady), a(bsent list), e(mpty list), f(ull list),
// t(urn of the main queue), c(lose of the web view).
TEST_F(WelcomeTest, HandsTheListOverOnce) {
  const struct {
    const char* steps;
    std::size_t calls;
  } rows[] = {
      {"rt", 0},  {"ft", 0},    {"rtft", 1}, {"ftrt", 1}, {"frtrtt", 1}, {"frtlrtft", 1},
      {"rat", 0}, {"ratft", 1}, {"ret", 1},  {"fr", 0},   {"frct", 0},
  };
  for (const auto& row : rows) {
    auto& page = open();
    for (const char step : std::string_view(row.steps)) {
      if (step == 'l') page.startPage();
      if (step == 'r') page.call("ready");
      if (step == 'a') controller->setRecommendations({});
      if (step == 'e') controller->setRecommendations(RecommendationList());
      if (step == 'f') controller->setRecommendations(RecommendationList{recommendation("Alpha")});
      if (step == 't') fake.queues.main.run();
      if (step == 'c') controller->cleanup();
    }
    EXPECT_EQ(page.calls.size(), row.calls) << row.steps;
    const auto call = page.calls.empty() ? "" : testing::PrintToString(page.calls.front().first);
    EXPECT_EQ(call, row.calls ? "\"setRecommendations\"" : "");
    fake.queues.main.run();
  }
}

// One letter a step: s(how), w(idth), l(ist without alert text), f(ull list), n(ewsletter mode),
// m (welcome mode).
TEST_F(WelcomeTest, AlertsAtTheFirstMomentThatItMay) {
  const struct {
    const char* steps;
    std::size_t alerts;
  } rows[] = {
      {"sf", 1}, {"slf", 1}, {"fw", 0}, {"fsww", 1}, {"fsff", 1}, {"nfsw", 0}, {"nfsmw", 1},
  };
  for (const auto& row : rows) {
    auto& page = open();
    for (const char step : std::string_view(row.steps)) {
      if (step == 's') page.call("showWindow");
      if (step == 'w') page.call("setWidth:height", {640, 480});
      if (step == 'l') controller->setRecommendations(RecommendationList{recommendation("Alpha")});
      if (step == 'f')
        controller->setRecommendations(RecommendationList{recommendation("Alpha", "Try it")});
      if (step == 'n') controller->setDisplayAlerts(false);
      if (step == 'm') controller->setDisplayAlerts(true);
    }
    EXPECT_EQ(page.sheets.size(), row.alerts) << row.steps;
  }
}

TEST_F(WelcomeTest, TheFirstAlertOfTheListLeadsToItsApplication) {
  fake.application.strings = {{{"Wrenvale", "Cancel"}, "Abbrechen"}, {{"Other", "Ok"}, "Gut"}};
  const auto full = recommendation("a", "100 %@", "Get it", "http://alert", "http://link");
  const auto link = recommendation("a", "100 %@", {}, {}, "http://link");
  const auto none = recommendation("a", "100 %@");
  const struct {
    std::shared_ptr<const Recommendation> record;
    int answer;
    bool updating;
    const char* texts;
    std::vector<std::string> opened;
    int beeps;
  } rows[] = {
      {full, 1, true, "Thank you for updating Photo Tool!/Get it", {"http://alert"}, 0},
      {full, 0, true, "Thank you for updating Photo Tool!/Get it", {}, 0},
      {full, -1, false, "Thank you for downloading Photo Tool!/Get it", {"http://alert"}, 0},
      {link, 1, false, "Thank you for downloading Photo Tool!/Ok", {"http://link"}, 0},
      {none, 1, false, "Thank you for downloading Photo Tool!/Ok", {}, 1},
  };
  for (const auto& row : rows) {
    fake.application.opened.clear();
    fake.application.beeps = 0;
    auto& page = open();
    page.call("showWindow");
    controller->setUpdating(row.updating);
    controller->setRecommendations(
        RecommendationList{recommendation("first"), row.record, recommendation("last", "last")});
    ASSERT_EQ(page.sheets.size(), 1U);
    const auto& alert = page.sheets.front();
    EXPECT_EQ(alert.messageText + "/" + alert.defaultButton, row.texts);
    EXPECT_EQ(alert.informativeText + *alert.alternateButton, "100 %@Abbrechen");
    controller->setRecommendations({}); // the sheet keeps its own record
    page.answerSheet(row.answer);
    EXPECT_EQ(fake.application.opened, row.opened) << "row " << &row - rows;
    EXPECT_EQ(fake.application.beeps, row.beeps) << "row " << &row - rows;
  }
}

TEST_F(WelcomeTest, ClickedLinksLeaveForTheBrowser) {
  using enum NavigationType;
  const struct {
    const char* mainDocumentURL;
    NavigationType type;
    PolicyDecision decision;
    std::size_t opened;
  } rows[] = {
      {"http://vendor.example", kOther, PolicyDecision::kUse, 0},
      {"http://vendor.example", kLinkClicked, PolicyDecision::kNone, 1},
      {"http://vendor.example", kFormSubmitted, PolicyDecision::kIgnore, 0},
      {"http://vendor.example", NavigationType(-1), PolicyDecision::kIgnore, 0},
      {"about:blank", kLinkClicked, PolicyDecision::kUse, 0},
      {"about:blank#", kReload, PolicyDecision::kIgnore, 0},
      {"", kLinkClicked, PolicyDecision::kNone, 1},
  };
  auto& page = open();
  for (const auto& row : rows) {
    const platform::NavigationAction action{
        .url = "http://to.example/?a b", .mainDocumentURL = row.mainDocumentURL, .type = row.type};
    const std::vector<std::string> opened(row.opened, action.url);
    fake.application.opened.clear();
    EXPECT_EQ(page.navigate(action), row.decision) << "row " << &row - rows;
    EXPECT_EQ(fake.application.opened, opened) << "row " << &row - rows;
  }
}

TEST_F(WelcomeTest, AFailedPageClosesTheWindow) {
  auto& hidden = open();
  hidden.fail(false);
  EXPECT_EQ(delegate->finished, 0);
  hidden.fail();
  EXPECT_EQ(delegate->finished, 1);
  EXPECT_TRUE(hidden.sheets.empty() && hidden.webViewClosed);
  EXPECT_EQ(hidden.delegate, nullptr);

  auto& shown = open();
  shown.call("showWindow");
  shown.fail(false);
  EXPECT_TRUE(shown.sheets.empty());
  shown.fail();
  shown.fail();
  ASSERT_EQ(shown.sheets.size(), 1U);
  EXPECT_EQ(shown.sheets.front().title, "Photo Tool");
  EXPECT_EQ(shown.sheets.front().messageText, "The page did not load.");
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
  const struct {
    const char* what;
    std::function<void(platform::FakeRecommenderWindow&)> before;
  } rows[] = {
      {"the page loading", [](auto&) {}},
      {"a hand-over", [](auto& page) { page.call("ready"); }},
      {"a sheet", [](auto& page) { page.call("subscribe", {"no address"}); }},
      {"an error sheet", [](auto& page) { page.call("showWindow"), page.fail(); }},
      {"a delivery", [](auto& page) { page.call("subscribe", {"a@b.de"}); }},
  };
  for (const auto& row : rows) {
    auto& page = open();
    controller->setRecommendations(RecommendationList{recommendation("Alpha", "Try it")});
    row.before(page);
    const auto handlers = page.handlers; // of a platform that answers sheets late
    delegate->finished = 0;
    page.pressClose();
    EXPECT_EQ(controller, nullptr) << row.what;
    for (const auto& handler : handlers)
      handler(platform::kAlertDefaultReturn);
    page.call("showWindow");
    page.fail();
    page.pressClose();
    fake.queues.runAll();
    EXPECT_EQ(delegate->finished, 1) << row.what;
    EXPECT_TRUE(page.calls.empty()) << row.what;
    EXPECT_FALSE(page.visible) << row.what;
  }
}

} // namespace
} // namespace wrenvale
