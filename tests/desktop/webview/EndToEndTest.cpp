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

  platform::QtWindows windows{WRENVALE_WEBVIEW_MODULE};
  const platform::Platform real{fake.platform,      fake.queues.main, fake.queues.global,
                                fake.queues.serial, fake.application, windows,
                                fake.menus};
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
    EXPECT_EQ(controller->window()->webView()->callWebScriptMethod("nothing", {}), !isVendors);
    controller = nullptr;
  }
}

// Each page asks its host for what it should not, tells what came of it, and its window still
// works.
TEST_F(EndToEndTest, APageMayAskForAnything) {
  const struct {
    const char* script;
    const char* told;
  } rows[] = {
      {"tell(typeof R.ready(1, 'x'), R.appName('x', {}), R.bundleVersion(null))",
       "object,photo%20tool,120"},
      {"tell(R.subscribe(), R.subscribe(7), R.subscribe({}), R.subscribe(['a@b.de']))",
       "false,false,false,false"},
      {"tell(R.checkSelector(), R.checkSelector(true), R.checkSelector('cleanup'))",
       "false,false,false"},
      {"tell(R.subscribe('@'.repeat(1e7)), R.subscribe('a'.repeat(1e7) + '@b.de'))", "false,true"},
      {"try { R.cleanup() } catch (error) { tell(error.name) }", "typeerror"},
      {"for (const size of [0, -1, 2 ** 31, -(2 ** 31), 2 ** 53, 2 ** 63 - 1024, -(2 ** 63), 1e300,"
       "NaN, 'x', null]) R['setWidth:height'](size, size); R['setWidth:height'](); tell('sized')",
       "sized"},
      {"for (let i = 0; i < 3000; ++i) R.showWindow(), R.beep(), R.subscribe('x'); tell('shown')",
       "shown"},
      {"let lists = 0; setRecommendations = () => { ++lists; R.ready() }; R.ready(); R.ready();"
       "setTimeout(() => { R.ready(); setTimeout(() => tell(lists), 100) }, 100)",
       "1"},
      {"setRecommendations = () => { setTimeout(() => tell('thrown')); throw 1 }; R.ready()",
       "thrown"},
      {"setRecommendations = 'none'; R.ready(); setTimeout(() => tell('none'), 100)", "none"},
  };
  fake.locale.country = "US";
  for (const auto& row : rows) {
    SCOPED_TRACE(row.script);
    site.page("/store/newsletter/index_us.html",
              "<body><script>const R = Recommender, tell = (...told) => fetch('/told?' + told);\n" +
                  std::string(row.script) + "</script>");
    open();
    const auto before = site.heads("/told?" + std::string(row.told)).size();
    EXPECT_TRUE(
        turnUntil([&] { return site.heads("/told?" + std::string(row.told)).size() > before; }));
    controller->javascript_setWidth(500, 300);
    controller->javascript_showWindow();
    QWidget* window = top("Recommender");
    ASSERT_TRUE(window);
    EXPECT_TRUE(
        waitUntil([&] { return window->isVisible() && window->size() == QSize(500, 300); }));
    delegate->finished = 0;
    window->close();
    EXPECT_EQ(delegate->finished, 1);
    EXPECT_TRUE(waitUntil([] { return !top("Recommender") && !top("QMessageBox"); }));
  }
}

} // namespace
} // namespace wrenvale
