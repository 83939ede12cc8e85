#include "welcome/ScriptBridge.h"

#include <limits>

#include <gtest/gtest.h>

#include "tests/welcome/WelcomeFixture.h"

namespace wrenvale {
namespace {

using Arguments = std::vector<Value>;

constexpr auto kLargest = std::numeric_limits<std::int64_t>::max();
constexpr auto kSmallest = std::numeric_limits<std::int64_t>::min();

TEST(ScriptBridge, NamesForThePage) {
  const struct {
    std::string_view selector;
    std::optional<std::string_view> name;
  } rows[] = {
      {"javascript_ready", "ready"},
      {"javascript_subscribe:", "subscribe"},
      {"javascript_setWidth:height:", "setWidth:height"},
      {"javascript_a:b", "a:"},
      {"javascript_:", ""},
      {"my_javascript_x", {}},
      {"cleanup", {}},
      {"webView:didClearWindowObject:forFrame:", {}},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(welcome::webScriptNameForSelector(row.selector), row.name) << row.selector;
    EXPECT_EQ(welcome::isSelectorExcludedFromWebScript(row.selector), !row.name) << row.selector;
  }
}

TEST_F(WelcomeTest, PublishesTheOperationsAndNothingElse) {
  std::string published;
  for (const auto& method : open().scriptObjects.at("Recommender"))
    published += method.name + "/" + std::to_string(method.arguments) + " ";
  EXPECT_EQ(published, "ready/0 log/1 beep/0 showWindow/0 setWidth:height/2 subscribe/1 updating/0 "
                       "appName/0 openAppstoreForApp/0 bundleVersion/0 bundleID/0 countryCode/0 "
                       "languageCode/0 checkSelector/1 ");
  for (const char* name : {"", "setWidth", "setWidth:height:", "javascript_ready", "cleanup",
                           "Ready", "setRecommendations"})
    EXPECT_EQ(controller->invokeScriptMethod(name, {1, 2}), std::nullopt) << name;
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
      {"appName", {}, "Photo Tool"},
      {"bundleVersion", {}, "120"},
      {"bundleID", {}, "com.example.host"},
      {"countryCode", {}, "CH"},
      {"languageCode", {}, "FR-CH"},
      {"log", {"anything"}, {}},
      {"checkSelector", {"javascript_showWindow"}, true},
      {"checkSelector", {"javascript_setWidth:height:"}, true},
      {"checkSelector", {"javascript_setWidth:height"}, false},
      {"checkSelector", {"showWindow"}, false},
      {"checkSelector", {std::string(10'000'000, 'j')}, false},
      {"checkSelector", {}, false},
      {"appName", {1, "two", Value()}, "Photo Tool"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(page.call(row.name, row.arguments), std::optional(row.answer)) << row.name;
    EXPECT_EQ(controller->invokeScriptMethod(row.name, row.arguments), std::optional(row.answer))
        << row.name << " with as many arguments as the script gave";
  }
  controller->setUpdating(true);
  EXPECT_EQ(page.call("updating"), Value(true));
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
  const platform::Frame start{.x = 100, .y = 200, .width = 500, .height = 400};
  const struct {
    platform::Frame before;
    Value width, height;
    platform::Frame after;
  } rows[] = {
      {start, 640, 480, {30, 149, 640, 502}},
      {start, 501, 379, {100, 199.5, 501, 401}}, // 99.5 rounds away from zero
      {{0, 0, 500, 400}, 501, 379, {-1, -0.5, 501, 401}},
      {start, 0, 0, {350, 389, 0, 22}},
      {start, "640 points", 480.9, {30, 149, 640, 502}},
      {start, Value::Array{1, 2}, "wide", {350, 389, 0, 22}},
      {start, kLargest, kSmallest, {-0x1p62, 0x1p62, 0x1p63, -0x1p63}},
  };
  auto& page = open();
  const auto text = [](const platform::Frame& frame) {
    return testing::PrintToString(std::vector{frame.x, frame.y, frame.width, frame.height});
  };
  for (const auto& row : rows) {
    page.frame = row.before;
    page.call("setWidth:height", {row.width, row.height});
    EXPECT_EQ(text(page.frame), text(row.after)) << "row " << &row - rows;
    EXPECT_FALSE(page.frames.back().second) << "moves only in sight";
  }
  page.call("showWindow");
  page.call("setWidth:height", {1});
  EXPECT_TRUE(page.frames.back().second);
}

TEST_F(WelcomeTest, SubscribesAddresses) {
  const std::string longest = std::string(106, 'a') + "@b.de"; // with "email=" 117 bytes
  auto& page = open();
  for (const auto& address :
       {std::string("Ann+tag@b.de"), longest, "a" + longest, std::string(1'000'000, 'a') + "@b.de"})
    EXPECT_EQ(page.call("subscribe", {address}), Value(true)) << address;
  EXPECT_TRUE(fake.urlLoading.requests.empty()) << "before any network activity";
  page.pressClose(); // which the deliveries survive
  fake.queues.runAll();
  const auto& requests = fake.urlLoading.requests;
  ASSERT_EQ(requests.size(), 4U);
  const std::string address = "http://vendor.example/store/subscribe.php?data=";
  EXPECT_EQ(requests[0].url, address + "W2VtYWlsPUFubit0YWdAYi5kZV0%3D"); // base64 of [email=...]
  EXPECT_NE(requests[1].url, address + "(null)");
  EXPECT_EQ(requests[2].url, address + "(null)");
  EXPECT_EQ(requests[3].url, address + "(null)");
  EXPECT_EQ(requests[0].httpMethod, "GET");
  EXPECT_TRUE(requests[0].headers.empty());
}

TEST_F(WelcomeTest, RefusesWhatIsNoAddress) {
  fake.application.strings[{"Wrenvale", "Please enter a valid email address to subcribe."}] =
      "100 %@ d'accord";
  auto& page = open();
  for (const Value& address :
       {Value("ann@b.museum"), Value(), Value(7), Value(true), Value(std::string(10'000'000, '@')),
        Value(Value::Array{"a@b.de"})}) {
    EXPECT_EQ(page.call("subscribe", {address}), Value(false));
    ASSERT_EQ(page.handlers.size(), 1U);
    EXPECT_EQ(page.call("subscribe", {address}), Value(false)) << "while the sheet is up";
    EXPECT_EQ(page.handlers.size(), 1U);
    EXPECT_TRUE(page.answerSheet());
  }
  ASSERT_EQ(page.sheets.size(), 6U);
  const auto& sheet = page.sheets.front();
  EXPECT_EQ(sheet.title, "Photo Tool");
  EXPECT_EQ(sheet.messageText, "Invalid email address");
  EXPECT_EQ(sheet.informativeText, "100 %@ d'accord");
  EXPECT_EQ(sheet.defaultButton, "Ok");
  EXPECT_FALSE(sheet.alternateButton || sheet.otherButton);
  EXPECT_EQ(fake.queues.global.size(), 0U);
}

} // namespace
} // namespace wrenvale
