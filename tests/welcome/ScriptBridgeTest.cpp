#include "welcome/ScriptBridge.h"

#include <gtest/gtest.h>

#include "tests/welcome/WelcomeFixture.h"

namespace wrenvale {
namespace {

using Arguments = std::vector<Value>;

TEST_F(WelcomeTest, PublishesTheOperationsAndNothingElse) {
  EXPECT_EQ(open().scriptObjects.at("Recommender").size(), 14U);
  for (const char* name : {"", "setWidth", "setWidth:height:", "javascript_ready", "cleanup"})
    EXPECT_EQ(controller->invokeScriptMethod(name, {1, 2}), std::nullopt) << name;
  EXPECT_FALSE(welcome::webScriptNameForSelector("my_javascript_x"));
}

TEST_F(WelcomeTest, AnswersThePage) {
  auto& page = open();
  fake.locale.country = "ch";
  fake.locale.languages = {"fr-CH", "de"};
  const struct {
    const char* name;
    Arguments arguments;
    Value answer;
  } rows[] = {
      {"updating", {}, false},
      {"appName", {1, "two"}, "Photo Tool"},
      {"bundleVersion", {}, "120"},
      {"bundleID", {}, "com.example.host"},
      {"countryCode", {}, "CH"},
      {"languageCode", {}, "FR-CH"},
      {"log", {"anything"}, {}},
      {"checkSelector", {"javascript_setWidth:height:"}, true},
      {"checkSelector", {"javascript_setWidth:height"}, false},
      {"checkSelector", {std::string(10'000'000, 'j')}, false},
      {"checkSelector", {}, false},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(page.call(row.name, row.arguments), row.answer) << row.name;
    EXPECT_EQ(controller->invokeScriptMethod(row.name, row.arguments), row.answer) << row.name;
  }
  fake.locale.country.reset();
  fake.locale.languages.clear();
  EXPECT_EQ(page.call("countryCode"), Value("EN"));
  EXPECT_EQ(page.call("languageCode"), Value("EN"));
  fake.info.erase("CFBundleIdentifier");
  EXPECT_EQ(page.call("bundleID"), Value());
  page.call("beep");
  EXPECT_EQ(fake.application.beeps, 1);
  page.call("openAppstoreForApp");
  EXPECT_EQ(fake.application.opened.at(0), "macappstore://store.example/us/app/id123456789?mt=12");
  page.call("showWindow");
  EXPECT_EQ(fake.application.activations, 1);
  EXPECT_TRUE(page.visible && page.webViewRevealed);
}

TEST_F(WelcomeTest, ResizesAroundTheCentre) {
  const struct {
    Value width, height;
    std::vector<double> after;
  } rows[] = {
      {501, 379, {100, 199.5, 501, 401}}, // 99.5 rounds away from zero
      {"640 points", 480.9, {30, 149, 640, 502}},
      {Value::Array{1, 2}, "wide", {350, 389, 0, 22}},
      {1e300, -1e300, {-0x1p62, 0x1p62, 0x1p63, -0x1p63}},
  };
  auto& page = open();
  const auto& frame = page.frame;
  for (const auto& row : rows) {
    page.frame = {.x = 100, .y = 200, .width = 500, .height = 400};
    page.call("setWidth:height", {row.width, row.height});
    EXPECT_EQ((std::vector{frame.x, frame.y, frame.width, frame.height}), row.after);
    EXPECT_FALSE(page.frames.back().second) << "moves only in sight";
  }
  page.call("showWindow");
  page.call("setWidth:height", {1});
  EXPECT_TRUE(page.frames.back().second);
}

TEST_F(WelcomeTest, SubscribesAddresses) {
  auto& page = open();
  std::string longest(106, 'a');
  longest += "@b.de"; // with "email=" 117 bytes
  for (const auto& address : {std::string("Ann+tag@b.de"), longest, "a" + longest})
    EXPECT_EQ(page.call("subscribe", {address}), Value(true));
  EXPECT_TRUE(fake.urlLoading.requests.empty()) << "before any network activity";
  page.pressClose(); // which the deliveries survive
  fake.queues.runAll();
  const auto& requests = fake.urlLoading.requests;
  ASSERT_EQ(requests.size(), 3U);
  const std::string address = "http://vendor.example/store/subscribe.php?data=";
  EXPECT_EQ(requests[0].url, address + "W2VtYWlsPUFubit0YWdAYi5kZV0%3D"); // base64 of [email=...]
  EXPECT_TRUE(requests[0].headers.empty());
  EXPECT_NE(requests[1].url, address + "(null)");
  EXPECT_EQ(requests[2].url, address + "(null)");
}

TEST_F(WelcomeTest, RefusesWhatIsNoAddress) {
  const auto* text = "Please enter a valid email address to subcribe.";
  fake.application.strings[{"Wrenvale", text}] = "100 %@ d'accord";
  auto& page = open();
  for (const Value& address : {Value("ann@b.museum"), Value(7), Value(Value::Array{"a@b.de"})}) {
    EXPECT_EQ(page.call("subscribe", {address}), Value(false));
    EXPECT_EQ(page.call("subscribe", {address}), Value(false)) << "while the sheet is up";
    EXPECT_EQ(page.handlers.size(), 1U);
    EXPECT_TRUE(page.answerSheet());
  }
  const auto& sheet = page.sheets.at(2);
  EXPECT_EQ(sheet.title + ": " + sheet.messageText, "Photo Tool: Invalid email address");
  EXPECT_EQ(sheet.informativeText + " " + sheet.defaultButton, "100 %@ d'accord Ok");
  EXPECT_FALSE(sheet.alternateButton || sheet.otherButton);
  EXPECT_EQ(fake.queues.global.size(), 0U);
}

} // namespace
} // namespace wrenvale
