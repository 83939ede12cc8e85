// The Help-menu controller on real menus.

#include <wrenvale/KVXWrenvaleController.h>

#include <gmock/gmock.h>

#include <QApplication>
#include <QMenuBar>
#include <QTranslator>

#include "desktop/qt/app/QtApplication.h"
#include "desktop/qt/app/QtMenus.h"
#include "tests/core/ServiceFixture.h"
#include "tests/menu/OverAService.h"

namespace wrenvale::platform {
namespace {

using testing::ElementsAre;

// Real menus and translations, and a service that goes nowhere.
class QtMenusTest : public ServiceTest {
protected:
  QtMenusTest() {
    bar = new QMenuBar(&window);
    help = bar->addMenu("&Help");
  }

  std::unique_ptr<KVXWrenvaleController> makeController() {
    auto controller = std::make_unique<OverAService>(overReal);
    controller->setMainMenu(bar);
    controller->setHelpMenu(help);
    return controller;
  }

  QAction* item(const char* name) const { return help->findChild<QAction*>(name); }

  /// Translates, and opens addresses nowhere.
  class Application final : public FakeApplication {
  public:
    using FakeApplication::FakeApplication;
    std::optional<std::string> localizedString(std::string_view key,
                                               std::string_view table) const override {
      return real_.localizedString(key, table);
    }

  private:
    FakeUserDefaults defaults_;
    QtApplication real_{defaults_};
  };

  Application application{fake.system};
  QtMenus menus;
  const Platform real{fake.platform,
                      fake.queues.main,
                      fake.queues.global,
                      fake.queues.serial,
                      application,
                      fake.windows,
                      menus};
  Service overReal{real, configuration()};
  QWidget window;
  QMenuBar* bar = nullptr;
  QMenu* help = nullptr;
};

TEST_F(QtMenusTest, EveryItemCanBeChosen) {
  makeController()->awakeFromNib();
  QStringList names;
  for (auto* action : help->actions()) {
    names += action->isSeparator() ? "-" : action->objectName();
    EXPECT_EQ(action->shortcut(),
              names.size() == 1 ? QKeySequence(Qt::CTRL | Qt::Key_Question) : QKeySequence());
    EXPECT_TRUE(action->icon().isNull());
    action->trigger();
  }
  EXPECT_EQ(names.join(' ').toStdString(),
            "openSupportWebPageAction - rateOnMacAppStoreAction - subscribeToNewsLetterAction "
            "followOnTwitterAction moreAppsAction - openGeneralSupportAction - "
            "openKVXWebPageAction");
  EXPECT_EQ(application.opened.size(), 5U);
  EXPECT_EQ(fake.windows.rateWindows.size(), 1U);
  EXPECT_EQ(fake.windows.recommenderWindows.size(), 1U);
}

TEST_F(QtMenusTest, TheHostsOwnHelpIsRecognised) {
  const struct {
    const char* name;
    QList<QKeySequence> keys;
    bool recognised;
  } rows[] = {
      {"showHelp", {}, true},
      {"", {Qt::CTRL | Qt::Key_H, Qt::Key_F1}, true},
      {"showhelp", {Qt::CTRL | Qt::Key_H}, false},
  };
  for (const auto& row : rows) {
    help->clear();
    auto* manual = help->addAction("Manual");
    manual->setObjectName(row.name);
    manual->setShortcuts(row.keys);
    makeController()->awakeFromNib();
    EXPECT_EQ(!item("openSupportWebPageAction"), row.recognised) << row.name;
  }
}

TEST_F(QtMenusTest, OnlyTitlesChange) {
  fake.info["CFBundleName"] = "Cut & Paste";
  auto* about = help->addAction("&About #app_name\u2026\tF9");
  help->addSection("#app_name");
  auto* deeper = help->addMenu("More of #app_name")->addAction("Deep in #app_name");
  auto* plain = bar->addAction("#app_name");

  makeController()->awakeFromNib();

  EXPECT_EQ(about->text(), "&About Cut && Paste\u2026\tF9");
  EXPECT_EQ(help->actions().at(1)->text(), "Cut && Paste");
  EXPECT_TRUE(help->actions().at(1)->isSeparator());
  EXPECT_EQ(help->actions().at(2)->text(), "More of Cut && Paste");
  EXPECT_EQ(deeper->text(), "Deep in #app_name");
  EXPECT_EQ(plain->text(), "#app_name");
  EXPECT_EQ(item("openSupportWebPageAction")->text(), "Cut && Paste Help");
}

TEST_F(QtMenusTest, MenusAndControllerGoInAnyOrder) {
  auto controller = makeController();
  controller->awakeFromNib();
  controller.reset();
  item("moreAppsAction")->trigger();
  EXPECT_EQ(application.opened.size(), 1U);

  controller = makeController();
  delete help;
  controller->awakeFromNib();
  delete bar;
  controller->awakeFromNib();
  EXPECT_THAT(window.children(), ElementsAre());
}

class OddTranslator final : public QTranslator {
public:
  bool isEmpty() const override { return false; }

  QString translate(const char* context, const char* text, const char*, int) const override {
    if (QLatin1String(context) == "InfoPlist") return "أداة الصور";
    if (QLatin1String(text) == "Support") return "";
    if (QLatin1String(text) == "Help") return "مساعدة(&H)";
    return {};
  }
};

TEST_F(QtMenusTest, AnEmptyTranslationIsNone) {
  OddTranslator odd;
  QCoreApplication::installTranslator(&odd);
  makeController()->awakeFromNib();
  QCoreApplication::removeTranslator(&odd);
  EXPECT_EQ(item("openGeneralSupportAction")->text(), "Support");
  EXPECT_EQ(item("openSupportWebPageAction")->text(), "أداة الصور مساعدة(&H)");
}

} // namespace
} // namespace wrenvale::platform
