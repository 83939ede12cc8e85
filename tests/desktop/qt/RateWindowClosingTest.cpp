#include "RateWindowFixture.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

namespace wrenvale::platform {
namespace {

class QtRateWindowClosingTest : public RateWindowFixture {
protected:
  long asked() const {
    return std::count(delegate_.calls.begin(), delegate_.calls.end(), "should close");
  }

  /// Opens over a parent and runs modally; `during` is called from the modal loop.
  bool runModal(const std::function<void()>& during) {
    bool ran = false;
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
  const struct {
    const char* name;
    std::function<void(QWidget& window, std::unique_ptr<QWidget>& parent)> close;
  } ways[] = {
      {"two close events", [](QWidget& window, auto&) { window.close(), window.close(); }},
      {"escape", [](QWidget& window, auto&) { QTest::keyClick(&window, Qt::Key_Escape); }},
      {"close button",
       [](QWidget& window, auto&) { window.findChild<QPushButton*>("closeButton")->click(); }},
      {"hidden by the host", [](QWidget& window, auto&) { window.hide(); }},
      {"destroyed by the host", [](QWidget& window, auto&) { delete &window; }},
      {"parent closed", [](QWidget&, auto& parent) { parent->close(); }},
      {"parent hidden", [](QWidget&, auto& parent) { parent->hide(); }},
      {"parent deleted", [](QWidget&, auto& parent) { parent.reset(); }},
      {"host quits", [](QWidget&, auto&) { QCoreApplication::quit(); }},
      {"host leaves its loop", [](QWidget&, auto&) { QCoreApplication::exit(3); }},
  };
  for (const auto& way : ways) {
    for (const bool pushing : {false, true}) {
      SCOPED_TRACE(std::string(way.name) + (pushing ? " in the middle of a transition" : ""));
      delegate_.calls.clear();
      window_ = windows_.makeRateWindow(delegate_, "");
      EXPECT_TRUE(runModal([&] {
        if (pushing) window_->setView(RateView::kContact, true);
        way.close(*widget(), parent_);
      }));
      EXPECT_EQ(asked(), 1);
      window_.reset();
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
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
  const std::map<const char*, std::function<void()>> commands{
      {"close", [this] { window_->close(); }},
      {"destroy", [this] { window_.reset(); }},
  };
  for (const auto& [name, command] : commands) {
    SCOPED_TRACE(name);
    window_ = windows_.makeRateWindow(delegate_, "");
    delegate_.calls.clear();
    delegate_.onButton = [&command = command](RateButton) { command(); };
    EXPECT_TRUE(runModal([] { click("likeButton"); }));
    EXPECT_THAT(delegate_.calls, testing::ElementsAre("button 0"));
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
