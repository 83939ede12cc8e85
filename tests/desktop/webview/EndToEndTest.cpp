// The controller's page on the real engine, from the first script to the closed window.

#include <wrenvale/KVXWrenvale.h>

#include <QMessageBox>

#include "WebViewFixture.h"
#include "tests/welcome/WelcomeFixture.h"

namespace wrenvale {
namespace {

using platform::waitUntil;

constexpr const char* kPath = "/store/newsletter/index_us.html";
// Over the in-memory platform, but for the window, which is real.
class EndToEndTest : public WelcomeTest {
protected:
  void open() {
    fake.locale.country = "US";
    BuildConfiguration configuration;
    configuration.bridgeIsVendors = true;
    configuration.vendorBase = site.url("");
    here = std::make_unique<Endpoints>(configuration);
    start();
    controller = std::make_shared<KVXRecommenderWindowController>(*service, real, *here);
    controller->setDelegate(delegate);
    controller->setDisplayAlerts(true);
    ASSERT_TRUE(controller->loadWindow());
    controller->setRecommendations(
        RecommendationList{recommendation("Alpha"), recommendation("Beta", "Try it", "Show")});
  }
  bool turnUntil(const std::function<bool()>& condition) {
    return waitUntil([&] {
      fake.queues.main.run();
      return condition();
    });
  }
  static QWidget* top(const char* name) {
    for (auto* widget : QApplication::topLevelWidgets())
      if (widget->objectName() == name || widget->inherits(name)) return widget;
    return nullptr;
  }

  platform::QtWindows windows{WRENVALE_WEBVIEW_MODULE};
  const platform::Platform real{fake.platform,      fake.queues.main, fake.queues.global,
                                fake.queues.serial, fake.application, windows,
                                fake.menus};
  platform::Site site;
  std::unique_ptr<Endpoints> here;
};

// The page also asks its host for what it should not, and its window still works. What it calls
// while it is given its list comes to nothing.
TEST_F(EndToEndTest, ThePageGetsItsListAndMayAskForAnything) {
  site.page(kPath, R"(<!DOCTYPE html><meta charset=utf-8><body><script>
    const R = Recommender;
    const told = [R.appName('x', {}), R.bundleVersion(), R.updating(), R.subscribe('ann@b.de'),
                  R.subscribe('@'.repeat(1e7)), R.checkSelector(),
                  R.checkSelector('javascript_setWidth:height:')];
    for (const size of [0, -1, 2 ** 31, -(2 ** 31), 2 ** 53, 2 ** 63 - 1024, -(2 ** 63), 1e300,
                        NaN, 'x', null])
      R['setWidth:height'](size, size);
    R['setWidth:height']();
    function setRecommendations(text) {
      told.push(JSON.parse(text).map(each => each.name).join('+'));
      for (let i = 0; i < 3000; ++i) R.showWindow(), R.beep(), R.subscribe('x');
      R['setWidth:height'](500, 300);
      setTimeout(() => { R.ready(); setTimeout(() => fetch('/told?' + told), 100) });
      R.ready(); throw 1;
    }
    R.ready(1, 'x'); R.ready();
  </script>)");
  open();
  QWidget& window = *top("Recommender");
  EXPECT_FALSE(window.isVisible());
  const std::string told = "/told?photo%20tool,120,false,true,false,false,true,alpha+beta";
  ASSERT_TRUE(turnUntil([&] { return !site.heads(told).empty(); }));
  EXPECT_TRUE(window.isVisible());
  EXPECT_TRUE(window.findChild<QWidget*>("webView")->isVisible());
  EXPECT_TRUE(waitUntil([&] { return window.size() == QSize(500, 300); }));
  EXPECT_TRUE(std::ranges::any_of(QApplication::topLevelWidgets(), [](auto* each) {
    auto* sheet = qobject_cast<QMessageBox*>(each);
    return sheet && sheet->text() == "Thank you for downloading Photo Tool!";
  }));
  window.close();
  EXPECT_EQ(delegate->finished, 1);
  EXPECT_EQ(controller, nullptr);
  EXPECT_TRUE(waitUntil([] { return !top("Recommender") && !top("QMessageBox"); }));
}

} // namespace
} // namespace wrenvale
