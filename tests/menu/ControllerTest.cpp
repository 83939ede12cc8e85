#include <wrenvale/KVXWrenvaleController.h>

#include <stdexcept>

#include <gtest/gtest.h>

#include "menu/HelpMenu.h"
#include "tests/core/ServiceFixture.h"
#include "tests/menu/OverAService.h"

namespace wrenvale {
namespace {

using platform::FakeMenu;
using platform::FakeMenuItem;
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

TEST_F(ControllerTest, TheHelpMenuGetsItsItemsAtItsEnd) {
  // Text that is shown as it is stands between brackets.
  const Titles block = {"-",
                        "[Rate on Mac App Store]",
                        "-",
                        "[Subscribe to Newsletter]",
                        "[Follow on Twitter]",
                        "[More Apps by Brenmoor]",
                        "-",
                        "[Support]",
                        "-",
                        "[Visit vendor.example]"};
  const struct {
    std::vector<FakeMenuItem> before;
    Value name;
    Titles titles;
  } rows[] = {
      {{{.title = "Tips"}, {.title = "Help", .action = "help:"}},
       "Photo Tool",
       {"Tips", "Help", "[Photo Tool] [Help]"}},
      {{{.title = "Manual", .action = "showHelp:"}, {.title = "Tips"}}, {}, {"Manual", "Tips"}},
      {{}, {}, {"[(null)] [Help]"}},
  };
  for (auto [before, name, titles] : rows) {
    helpMenu->items.clear();
    for (const auto& item : before)
      helpMenu->add(item);
    fake.info["CFBundleName"] = name;
    makeController()->awakeFromNib();
    titles.insert(titles.end(), block.begin(), block.end());
    EXPECT_EQ(helpMenu->titles(), titles);
    for (const auto& item : helpMenu->items)
      EXPECT_EQ(item->keyEquivalent, item->action == "openSupportWebPageAction:" ? "?" : "")
          << item->title;
  }
}

TEST_F(ControllerTest, TitlesAreTheHostsTranslations) {
  fake.application.strings = {{{"InfoPlist", "CFBundleName"}, "Fotowerkzeug"},
                              {{"Wrenvale", "Help"}, "&Hilfe"},
                              {{"Wrenvale", "Support"}, "Hilfe zu #app_name"},
                              {{"Wrenvale", "Visit vendor.example"}, "vendor.example besuchen"}};
  mainMenu->add({.title = "Hilfe", .submenu = helpMenu});
  makeController()->awakeFromNib();
  const auto titles = helpMenu->titles();
  EXPECT_EQ(titles.at(0), "[Fotowerkzeug] &Hilfe");
  EXPECT_EQ(titles.at(8), "Hilfe zu [Fotowerkzeug]");
  EXPECT_EQ(titles.at(10), "vendor.example besuchen");
}

TEST_F(ControllerTest, EveryItemReachesItsOperationWithOrWithoutTheController) {
  const std::string base = "http://vendor.example";
  const std::pair<const char*, Titles> rows[] = {
      {"openSupportWebPageAction:", {base + "/app_redirect/support_US_en/com.example.host"}},
      {"rateOnMacAppStoreAction:", {}},
      {"subscribeToNewsLetterAction:", {}},
      {"followOnTwitterAction:", {base + "/app_redirect/twitter"}},
      {"moreAppsAction:", {base + "/app_redirect/moreapps_US_en"}},
      {"openGeneralSupportAction:", {base + "/app_redirect/support_US_en"}},
      {"openKVXWebPageAction:", {base}},
  };
  for (const bool alive : {true, false}) {
    start();
    helpMenu->items.clear();
    auto controller = makeController();
    controller->awakeFromNib();
    if (!alive) controller.reset();
    for (const auto& [action, opened] : rows) {
      const auto scope = std::string(action) + (alive ? "" : " without the controller");
      fake.system.advance(std::chrono::seconds(2));
      fake.application.opened.clear();
      fake.windows.rateWindows.clear();
      fake.windows.recommenderWindows.clear();
      EXPECT_TRUE(helpMenu->choose(action)) << scope;
      EXPECT_EQ(fake.application.opened, opened) << scope;
      EXPECT_EQ(fake.windows.rateWindows.size(), scope.starts_with("rate") ? 1U : 0U) << scope;
      EXPECT_EQ(fake.windows.recommenderWindows.size(), scope.starts_with("subscribe") ? 1U : 0U)
          << scope;
    }
  }
}

TEST(AppName, TakesThePlaceOfThePlaceholder) {
  EXPECT_EQ(withAppName("&Quit #app_names #App_name", "X"), "&Quit Xs #App_name");
  EXPECT_EQ(withAppName("#app_name#app_name", "#app_name"), "#app_name#app_name");
  EXPECT_EQ(withAppName("حول #app_name", "أداة الصور"), "حول أداة الصور");
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

class ThrowingController : public OverAService {
public:
  using OverAService::OverAService;

  void moreAppsAction(QObject*) override {
    ++calls;
    throw std::runtime_error("a host's own");
  }

  int calls = 0;
};

TEST_F(ControllerTest, ItemsCallWhatASubclassOverrides) {
  ThrowingController controller(*service);
  controller.setHelpMenu(fake.menus.hostMenu(helpMenu));
  controller.awakeFromNib();
  EXPECT_TRUE(helpMenu->choose("moreAppsAction:"));
  EXPECT_EQ(controller.calls, 1);
  EXPECT_TRUE(fake.application.opened.empty());
}

} // namespace
} // namespace wrenvale
