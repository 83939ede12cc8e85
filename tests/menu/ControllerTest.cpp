#include <wrenvale/KVXWrenvaleController.h>

#include <stdexcept>

#include <gmock/gmock.h>

#include "menu/HelpMenu.h"
#include "tests/core/ServiceFixture.h"
#include "tests/menu/OverAService.h"

namespace wrenvale {
namespace {

using platform::FakeMenu;
using platform::FakeMenuItem;
using testing::ElementsAre;
using testing::ElementsAreArray;
using Titles = std::vector<std::string>;

class ControllerTest : public ServiceTest {
protected:
  ControllerTest() { start(); }

  std::unique_ptr<KVXWrenvaleController> makeController() {
    auto controller = std::make_unique<OverAService>(*service);
    controller->setMainMenu(fake.menus.hostMenuBar(mainMenu));
    controller->setHelpMenu(fake.menus.hostMenu(helpMenu));
    return controller;
  }

  std::shared_ptr<FakeMenu> mainMenu = std::make_shared<FakeMenu>();
  std::shared_ptr<FakeMenu> helpMenu = std::make_shared<FakeMenu>();
};

// Text that is shown as it is stands between brackets.
const Titles kBlock = {"-",
                       "[Rate on Mac App Store]",
                       "-",
                       "[Subscribe to Newsletter]",
                       "[Follow on Twitter]",
                       "[More Apps by Brenmoor]",
                       "-",
                       "[Support]",
                       "-",
                       "[Visit vendor.example]"};

Titles joined(Titles first, const Titles& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

TEST_F(ControllerTest, TheHelpMenuGetsItsItemsAtItsEnd) {
  const struct {
    const char* what;
    std::vector<FakeMenuItem> before;
    Value name;
    Titles titles;
  } rows[] = {
      {"an empty menu", {}, "Photo Tool", joined({"[Photo Tool] [Help]"}, kBlock)},
      {"other items",
       {{.title = "Tips"}, {.title = "Photo Tool Help", .action = "help:"}},
       "Photo Tool",
       joined({"Tips", "Photo Tool Help", "[Photo Tool] [Help]"}, kBlock)},
      {"help of its own",
       {{.title = "Manual", .action = "showHelp:"}, {.title = "Tips"}},
       "Photo Tool",
       joined({"Manual", "Tips"}, kBlock)},
      {"no name", {}, {}, joined({"[(null)] [Help]"}, kBlock)},
  };
  for (const auto& row : rows) {
    helpMenu->items.clear();
    for (const auto& item : row.before)
      helpMenu->add(item);
    fake.info["CFBundleName"] = row.name;
    makeController()->awakeFromNib();
    EXPECT_THAT(helpMenu->titles(), ElementsAreArray(row.titles)) << row.what;
    for (const auto& item : helpMenu->items)
      EXPECT_EQ(item->keyEquivalent, item->action == "openSupportWebPageAction:" ? "?" : "")
          << row.what << ": " << item->title;
  }
}

TEST_F(ControllerTest, TitlesAreTheHostsTranslations) {
  fake.application.strings = {{{"InfoPlist", "CFBundleName"}, "Fotowerkzeug"},
                              {{"Wrenvale", "Help"}, "&Hilfe"},
                              {{"Wrenvale", "Support"}, "Hilfe zu #app_name"},
                              {{"Wrenvale", "Visit vendor.example"}, "vendor.example besuchen"},
                              {{"Other", "Follow on Twitter"}, "not this one"}};
  mainMenu->add({.title = "Hilfe", .submenu = helpMenu});
  makeController()->awakeFromNib();
  EXPECT_THAT(helpMenu->titles(),
              ElementsAre("[Fotowerkzeug] &Hilfe", "-", "[Rate on Mac App Store]", "-",
                          "[Subscribe to Newsletter]", "[Follow on Twitter]",
                          "[More Apps by Brenmoor]", "-", "Hilfe zu [Fotowerkzeug]", "-",
                          "vendor.example besuchen"));
}

TEST_F(ControllerTest, EveryItemReachesItsOperationWithOrWithoutTheController) {
  const struct {
    const char* action;
    Titles opened;
    std::size_t rateWindows = 0;
    std::size_t recommenderWindows = 0;
  } rows[] = {
      {"openSupportWebPageAction:",
       {"http://vendor.example/app_redirect/support_US_en/com.example.host"}},
      {"rateOnMacAppStoreAction:", {}, 1, 0},
      {"subscribeToNewsLetterAction:", {}, 0, 1},
      {"followOnTwitterAction:", {"http://vendor.example/app_redirect/twitter"}},
      {"moreAppsAction:", {"http://vendor.example/app_redirect/moreapps_US_en"}},
      {"openGeneralSupportAction:", {"http://vendor.example/app_redirect/support_US_en"}},
      {"openKVXWebPageAction:", {"http://vendor.example"}},
  };
  for (const bool alive : {true, false}) {
    start();
    helpMenu->items.clear();
    auto controller = makeController();
    controller->awakeFromNib();
    if (!alive) controller.reset();
    for (const auto& row : rows) {
      const auto scope = std::string(row.action) + (alive ? "" : " without the controller");
      fake.system.advance(std::chrono::seconds(2));
      fake.application.opened.clear();
      fake.windows.rateWindows.clear();
      fake.windows.recommenderWindows.clear();
      EXPECT_TRUE(helpMenu->choose(row.action)) << scope;
      EXPECT_EQ(fake.application.opened, row.opened) << scope;
      EXPECT_EQ(fake.windows.rateWindows.size(), row.rateWindows) << scope;
      EXPECT_EQ(fake.windows.recommenderWindows.size(), row.recommenderWindows) << scope;
    }
  }
}

TEST(AppName, TakesThePlaceOfThePlaceholder) {
  const struct {
    const char* title;
    const char* name;
    const char* expected;
  } rows[] = {
      {"About #app_name", "Photo Tool", "About Photo Tool"},
      {"#app_name#app_name", "#app_name", "#app_name#app_name"},
      {"&Quit #app_names", "X", "&Quit Xs"},
      {"#App_name #app name", "X", "#App_name #app name"},
      {"About #app_name", "", "About "},
  };
  for (const auto& row : rows)
    EXPECT_EQ(withAppName(row.title, row.name), row.expected) << row.title;
}

TEST_F(ControllerTest, MenusMayBeMissingOrGone) {
  auto controller = makeController();
  helpMenu.reset();
  mainMenu.reset();
  controller->awakeFromNib();
  controller->setHelpMenu(nullptr);
  controller->setMainMenu(nullptr);
  controller->awakeFromNib();

  helpMenu = std::make_shared<FakeMenu>();
  controller->setHelpMenu(fake.menus.hostMenu(helpMenu));
  controller->awakeFromNib();
  controller->awakeFromNib();
  EXPECT_EQ(helpMenu->items.size(), 22U) << "as often as it is called";
}

class CountingController : public OverAService {
public:
  using OverAService::OverAService;

  void moreAppsAction(QObject*) override {
    ++calls;
    throw std::runtime_error("a host's own");
  }

  int calls = 0;
};

TEST_F(ControllerTest, ItemsCallWhatASubclassOverrides) {
  CountingController controller(*service);
  controller.setHelpMenu(fake.menus.hostMenu(helpMenu));
  controller.awakeFromNib();
  EXPECT_TRUE(helpMenu->choose("moreAppsAction:"));
  EXPECT_EQ(controller.calls, 1);
  EXPECT_THAT(fake.application.opened, ElementsAre());
}

} // namespace
} // namespace wrenvale
