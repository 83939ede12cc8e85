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

class ControllerTest : public ServiceTest {
protected:
  ControllerTest() { start(); }

  std::unique_ptr<KVXWrenvaleController> makeController() {
    auto controller = std::make_unique<OverAService>(*service);
    controller->setMainMenu(fake.menus.hostMenuBar(mainMenu));
    controller->setHelpMenu(fake.menus.hostMenu(helpMenu));
    return controller;
  }

  std::string titles() const {
    std::string all;
    for (const auto& title : helpMenu->titles())
      all += title + "|";
    return all;
  }

  std::shared_ptr<FakeMenu> mainMenu = std::make_shared<FakeMenu>();
  std::shared_ptr<FakeMenu> helpMenu = std::make_shared<FakeMenu>();
};

TEST_F(ControllerTest, TheHelpMenuGetsItsItemsAtItsEnd) {
  // Text that is shown as it is stands between brackets.
  const std::string block = "-|[Rate on Mac App Store]|-|[Subscribe to Newsletter]|"
                            "[Follow on Twitter]|[More Apps by Brenmoor]|-|[Support]|-|"
                            "[Visit vendor.example]|";
  const struct {
    FakeMenuItem before;
    Value name;
    std::string titles;
  } rows[] = {
      {{.title = "Help", .action = "help:"}, "Photo Tool", "Help|[Photo Tool] [Help]|"},
      {{.title = "Manual", .action = "showHelp:"}, "Photo Tool", "Manual|"},
      {{.title = "Tips"}, {}, "Tips|[(null)] [Help]|"},
  };
  for (const auto& row : rows) {
    helpMenu->items.clear();
    helpMenu->add(row.before);
    fake.info["CFBundleName"] = row.name;
    makeController()->awakeFromNib();
    EXPECT_EQ(titles(), row.titles + block);
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
  EXPECT_EQ(titles(), "[Fotowerkzeug] &Hilfe|-|[Rate on Mac App Store]|-|[Subscribe to Newsletter]|"
                      "[Follow on Twitter]|[More Apps by Brenmoor]|-|Hilfe zu [Fotowerkzeug]|-|"
                      "vendor.example besuchen|");
}

TEST_F(ControllerTest, EveryItemReachesItsOperationWithOrWithoutTheController) {
  const std::string redirect = "http://vendor.example/app_redirect/";
  for (const std::size_t run : {1, 2}) {
    start();
    helpMenu->items.clear();
    fake.application.opened.clear();
    fake.system.advance(std::chrono::seconds(2));
    auto controller = makeController();
    controller->awakeFromNib();
    if (run == 2) controller.reset();
    EXPECT_TRUE(helpMenu->choose("rateOnMacAppStoreAction:"));
    EXPECT_EQ(fake.windows.rateWindows.size(), run);
    for (const char* action :
         {"subscribeToNewsLetterAction:", "openSupportWebPageAction:", "followOnTwitterAction:",
          "moreAppsAction:", "openGeneralSupportAction:", "openKVXWebPageAction:"})
      EXPECT_TRUE(helpMenu->choose(action)) << action << run;
    EXPECT_EQ(fake.windows.recommenderWindows.size(), run);
    EXPECT_THAT(fake.application.opened,
                testing::ElementsAre(redirect + "support_US_en/com.example.host",
                                     redirect + "twitter", redirect + "moreapps_US_en",
                                     redirect + "support_US_en", "http://vendor.example"));
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
