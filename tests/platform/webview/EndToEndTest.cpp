// The controller's page on the real engine, from the first script to the closed window.

#include <wrenvale/KVXWrenvale.h>

#include <QMessageBox>

#include "WebViewFixture.h"
#include "tests/welcome/WelcomeFixture.h"

namespace wrenvale {
namespace {

using platform::waitUntil;

constexpr const char* kPage = R"(<!DOCTYPE html><meta charset=utf-8><body><script>
  function setRecommendations(text) {
    const names = JSON.parse(text).map(each => each.name);
    Recommender['setWidth:height'](500, 300);
    Recommender.showWindow();
    fetch('/seen?' + [names.join('+'), Recommender.appName(), Recommender.bundleVersion(),
          Recommender.updating(), Recommender.subscribe('ann@b.de'),
          Recommender.checkSelector('javascript_setWidth:height:')].join());
  }
  Recommender.ready();
</script>)";

// Over the in-memory platform, but for the window, which is real.
class EndToEndTest : public WelcomeTest {
protected:
  EndToEndTest()
      : real{fake.platform,    fake.localization, fake.application, fake.workspace, fake.queues,
             fake.rateWindows, fake.alerts,       windows,          fake.menus} {}

  void open(BuildConfiguration configuration = {}) {
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

  platform::QtRecommenderWindows windows{WRENVALE_WEBVIEW_MODULE};
  platform::Platform real;
  platform::Site site;
  std::unique_ptr<Endpoints> here;
};

TEST_F(EndToEndTest, ThePageGetsItsListAndIsShown) {
  fake.locale.country = "US";
  site.page("/store/newsletter/index_us.html", kPage);
  open();
  QWidget& window = *top("Recommender");
  EXPECT_FALSE(window.isVisible());
  EXPECT_TRUE(window.findChild<QWidget*>("progressIndicator")->isVisibleTo(&window));
  const std::string seen = "/seen?alpha+beta,photo%20tool,120,false,true,true";
  ASSERT_TRUE(turnUntil([&] { return !site.heads(seen).empty(); }));
  EXPECT_TRUE(window.isVisible());
  EXPECT_TRUE(window.findChild<QWidget*>("webView")->isVisible());
  EXPECT_FALSE(window.findChild<QWidget*>("progressIndicator")->isVisible());
  EXPECT_TRUE(waitUntil([&] { return window.size() == QSize(500, 300); }));
  auto* sheet = qobject_cast<QMessageBox*>(top("QMessageBox"));
  ASSERT_TRUE(sheet);
  EXPECT_EQ(sheet->text(), "Thank you for downloading Photo Tool!");
  window.close();
  EXPECT_EQ(delegate->finished, 1);
  EXPECT_EQ(controller, nullptr);
  EXPECT_TRUE(waitUntil([] { return !top("Recommender") && !top("QMessageBox"); }));
}

// Where only the maker's own pages may, another's has no object, although the maker's page led to
// it. 127.0.0.1 and localhost are two.
TEST_F(EndToEndTest, OnlyTheMakersPagesReachTheHost) {
  fake.locale.country = "US";
  site.page("/other", "<script>fetch('/other-has-' + typeof Recommender)</script>");
  site.page("/store/newsletter/index_us.html",
            "<script>fetch('/maker-has-' + typeof Recommender).then(() => location = '" +
                site.url("/other", "localhost") + "')</script>");
  for (const bool isVendors : {false, true}) {
    open({.vendorBase = {},
          .storeHost = {},
          .publicKey = {},
          .vendorSiteName = {},
          .bridgeIsVendors = isVendors});
    const std::string other = isVendors ? "/other-has-undefined" : "/other-has-object";
    EXPECT_TRUE(turnUntil([&] { return !site.heads(other).empty(); })) << isVendors;
    EXPECT_EQ(site.heads("/maker-has-object").size(), isVendors ? 2U : 1U);
    EXPECT_EQ(controller->window()->hasScriptObject(), !isVendors);
    controller = nullptr;
  }
}

TEST_F(EndToEndTest, AMissingServerClosesTheHiddenWindow) {
  fake.locale.country = "US";
  site.answer("/store/newsletter/index_us.html", "");
  open();
  EXPECT_TRUE(turnUntil([&] { return delegate->finished == 1; }));
  EXPECT_EQ(controller, nullptr);
}

} // namespace
} // namespace wrenvale
