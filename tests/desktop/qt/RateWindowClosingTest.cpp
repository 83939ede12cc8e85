#include "RateWindowFixture.h"

#include <algorithm>
#include <cstdlib>
#include <map>

#include <QTimer>

namespace wrenvale::platform {
namespace {

/// Runs `body` in the application's event loop; false when that took too long.
bool runInApplication(const std::function<void()>& body) {
  QObject context; // takes along what is still posted when the loop ends
  bool ended = false;
  const auto exit = [] { QCoreApplication::exit(); };
  QTimer::singleShot(0, &context, [&] {
    body();
    ended = true;
    QTimer::singleShot(0, &context, exit);
  });
  QTimer::singleShot(20000, &context, exit);
  QApplication::exec();
  return ended;
}

class QtRateWindowClosingTest : public RateWindowFixture {
protected:
  long asked() const {
    return std::count(delegate_.calls.begin(), delegate_.calls.end(), "should close");
  }

  /// Opens a new window over a parent and runs it modally; `during` is called from the modal loop.
  bool runModal(const std::function<void()>& during) {
    bool ran = false;
    destroy();
    window_ = windows_.makeRateWindow(delegate_, "");
    delegate_.calls.clear();
    const bool ended = runInApplication([&] {
      parent_ = std::make_unique<QWidget>();
      openOver(*parent_);
      QTimer::singleShot(0, qApp, [&] {
        ran = true;
        during();
      });
      RateWindow& window = *window_; // which `during` may destroy
      window.runModal();
      EXPECT_FALSE(widget() && widget()->isVisible());
    });
    return ended && ran;
  }

  std::unique_ptr<QWidget> parent_;
};

TEST_F(QtRateWindowClosingTest, EveryWayAsksOnceAndEndsTheModalLoop) {
  const std::map<const char*, std::function<void(QWidget & window)>> ways{
      {"two close events", [](QWidget& window) { window.close(), window.close(); }},
      {"escape", [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); }},
      {"close button", [](QWidget&) { click("closeButton"); }},
      {"hidden by the host", [](QWidget& window) { window.hide(); }},
      {"destroyed by the host", [](QWidget& window) { delete &window; }},
      {"parent closed", [this](QWidget&) { parent_->close(); }},
      {"parent hidden", [this](QWidget&) { parent_->hide(); }},
      {"parent deleted", [this](QWidget&) { parent_.reset(); }},
      {"host quits", [](QWidget&) { QCoreApplication::quit(); }},
      {"host leaves its loop", [](QWidget&) { QCoreApplication::exit(3); }},
  };
  for (const auto& [name, close] : ways) {
    for (const bool pushing : {false, true}) {
      SCOPED_TRACE(std::string(name) + (pushing ? " in the middle of a transition" : ""));
      EXPECT_TRUE(runModal([&, &close = close] {
        if (pushing) window_->setView(RateView::kContact, true);
        close(*widget());
      }));
      EXPECT_EQ(asked(), 1);
      destroy();
      EXPECT_EQ(widget(), nullptr);
    }
  }
}

TEST_F(QtRateWindowClosingTest, AFreeWindowIsAskedWhenTheHostQuits) {
  EXPECT_TRUE(runInApplication([&] {
    open();
    QCoreApplication::exit();
  }));
  EXPECT_EQ(asked(), 1);
  EXPECT_FALSE(widget()->isVisible());
}

TEST_F(QtRateWindowClosingTest, ADelegateThatDisagreesKeepsItOpen) {
  delegate_.onClose = [] { return false; };
  open();
  widget()->close();
  EXPECT_TRUE(widget()->isVisible());
  delegate_.onClose = nullptr;
  widget()->close();
  EXPECT_FALSE(widget()->isVisible());
  EXPECT_EQ(asked(), 2);
}

// While the window still waits for its deletion. In a process of its own, not a forked one: that
// would share this one's display.
TEST_F(QtRateWindowClosingTest, TheHostMayExitInTheSameTurn) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(open(); window_.reset(); std::exit(0), testing::ExitedWithCode(0), "");
}

TEST_F(QtRateWindowClosingTest, CommandsOfTheDelegateAskNothing) {
  for (const bool destroys : {false, true}) {
    delegate_.onButton = [&](RateButton) { destroys ? window_.reset() : window_->close(); };
    EXPECT_TRUE(runModal([] { click("likeButton"); }));
    EXPECT_THAT(delegate_.calls, testing::ElementsAre("button 0")) << destroys;
  }
}

TEST_F(QtRateWindowClosingTest, MayBeDestroyedWhileItAsks) {
  delegate_.onClose = [this] {
    widget()->close(); // a host that quits from within
    window_.reset();
    return true;
  };
  EXPECT_TRUE(runModal([] { widget()->close(); }));
  EXPECT_EQ(asked(), 1);
}

TEST_F(QtRateWindowClosingTest, ClosedBeforeItRunsItDoesNotRun) {
  EXPECT_TRUE(runInApplication([&] {
    QWidget parent;
    openOver(parent);
    window_->close();
    window_->runModal();
  }));
}

TEST_F(QtRateWindowClosingTest, NeitherEndsNorKeepsTheHost) {
  QWidget hostWindow;
  int quits = 0;
  const auto connection =
      QObject::connect(qApp, &QGuiApplication::lastWindowClosed, [&quits] { ++quits; });
  EXPECT_TRUE(runInApplication([&] {
    open();
    widget()->close();
    EXPECT_EQ(quits, 0);
    hostWindow.show();
    open();
    hostWindow.close();
    EXPECT_EQ(quits, 1) << "the window that is still open must not count";
  }));
  QObject::disconnect(connection);
}

} // namespace
} // namespace wrenvale::platform
