#include "RateWindowFixture.h"

#include <QLabel>
#include <QScreen>

namespace wrenvale::platform {
namespace {

using testing::ElementsAre;

class QtRateWindowTest : public RateWindowFixture {
protected:
  void pushOnLike() {
    delegate_.onButton = [this](RateButton sender) {
      if (sender == RateButton::kLike) window_->setView(RateView::kAppstore, true);
    };
  }
};

TEST_F(QtRateWindowTest, OnePressForOneTransition) {
  pushOnLike();
  open();
  click("likeButton");
  ASSERT_TRUE(outlet("rateView").isVisible() && outlet("appstoreView").isVisible());
  click("dislikeButton");
  click("appstoreButton");
  EXPECT_THAT(delegate_.calls, ElementsAre("button 0"));
  ASSERT_TRUE(waitForPush());
  EXPECT_EQ(outlet("appstoreView").pos(), QPoint(0, 0));
  click("appstoreButton");
  EXPECT_THAT(delegate_.calls, ElementsAre("button 0", "button 2"));
}

TEST_F(QtRateWindowTest, ViewsComeFromWhereTextEnds) {
  for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
    widget()->setLayoutDirection(direction);
    window_->setView(RateView::kRate, false);
    open();
    window_->setView(RateView::kAppstore, true);
    const int x = outlet("appstoreView").x();
    EXPECT_TRUE(direction == Qt::LeftToRight ? x > 0 : x < 0) << x;
    EXPECT_TRUE(waitForPush());
  }
}

TEST_F(QtRateWindowTest, HoveringIsToldOfThePresentView) {
  const StillDesktop still;
  pushOnLike();
  open();
  hover("dislikeButton", true);
  hover("dislikeButton", false);
  hover("likeButton", true);
  hover("appstoreButton", true); // of another view
  click("likeButton");
  hover("likeButton", false); // went away under the pointer
  EXPECT_THAT(delegate_.calls, ElementsAre("entered 1", "exited 1", "entered 0", "button 0"));
}

TEST_F(QtRateWindowTest, OnlyTheActiveWindowIsHovered) {
  open();
  hover("likeButton", true);
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  EXPECT_THAT(delegate_.calls, ElementsAre("entered 0", "exited 0"));
  hover("likeButton", false);
  hover("dislikeButton", true);
  EXPECT_EQ(delegate_.calls.size(), 2U);
  widget()->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(widget()));
  EXPECT_THAT(delegate_.calls, ElementsAre("entered 0", "exited 0", "entered 1"));
}

// On a display the old view is hidden, and so left by the pointer, before the new one is there.
TEST_F(QtRateWindowTest, AViewThatGoesFromUnderThePointerIsNotLeft) {
  if (QGuiApplication::platformName() == "offscreen") GTEST_SKIP() << "has no pointer";
  delegate_.onButton = [&](RateButton) { window_->setView(RateView::kAppstore, true); };
  open();
  auto& like = outlet("likeButton");
  const QPoint place = like.mapTo(widget(), like.rect().center());
  QTest::mouseMove(widget()->windowHandle(), place - QPoint(3, 3));
  QTest::mouseMove(widget()->windowHandle(), place);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !delegate_.calls.empty(); }));
  QTest::mouseClick(widget()->windowHandle(), Qt::LeftButton, {}, place);
  ASSERT_TRUE(waitForPush());
  EXPECT_THAT(delegate_.calls, ElementsAre("entered 0", "button 0"));
}

TEST_F(QtRateWindowTest, WorksByKeyboard) {
  pushOnLike();
  open();
  QTest::keyClick(widget()->focusWidget(), Qt::Key_Return);
  EXPECT_THAT(delegate_.calls, ElementsAre()) << "a key meant for another window";
  for (int tab = 0; tab < 2; ++tab)
    QTest::keyClick(widget()->focusWidget(), Qt::Key_Tab);
  ASSERT_EQ(widget()->focusWidget(), &outlet("likeButton"));
  QTest::keyClick(widget()->focusWidget(), Qt::Key_Return);
  ASSERT_TRUE(waitForPush());
  ASSERT_EQ(widget()->focusWidget(), &outlet("appstoreButton"));
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
  QCoreApplication::sendEvent(widget()->focusWidget(), &held);
  EXPECT_THAT(delegate_.calls, ElementsAre("button 0"));
  QTest::keyClick(widget()->focusWidget(), Qt::Key_Space);
  QTest::keyClick(widget()->focusWidget(), Qt::Key_Escape);
  EXPECT_THAT(delegate_.calls, ElementsAre("button 0", "button 2", "should close"));
}

TEST_F(QtRateWindowTest, AParentsFirstTabComesToTheFirstButton) {
  QWidget parent;
  openOver(parent);
  QTest::keyClick(widget()->focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(widget()->focusWidget(), &outlet("dislikeButton"));
}

TEST_F(QtRateWindowTest, TheSecondClickOfADoubleClickPressesNothing) {
  open();
  QTest::mouseDClick(&outlet("dislikeButton"), Qt::LeftButton);
  QTest::mouseRelease(&outlet("dislikeButton"), Qt::LeftButton);
  EXPECT_THAT(delegate_.calls, ElementsAre());
}

TEST_F(QtRateWindowTest, TextsHaveTheNameAsItIs) {
  destroy();
  window_ = windows_.makeRateWindow(delegate_, "Cut & <b>Paste</b>");
  open();
  EXPECT_EQ(widget()->windowTitle(), "Rate Cut & <b>Paste</b>");
  for (const auto* label : widget()->findChildren<QLabel*>()) {
    EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->text().toStdString();
    EXPECT_FALSE(label->text().contains("%1")) << label->text().toStdString();
  }
}

TEST_F(QtRateWindowTest, StaysInTheMiddleOfItsParent) {
  QWidget parent;
  const auto middle = [&parent] {
    return parent.frameGeometry().center() - widget()->rect().center();
  };
  const auto centred = [&] {
    return QTest::qWaitFor([&] { return (widget()->pos() - middle()).manhattanLength() <= 2; });
  };
  openOver(parent);
  EXPECT_TRUE(centred());
  EXPECT_TRUE(widget()->isModal());
  EXPECT_TRUE(outlet("closeButton").isVisible());
  EXPECT_TRUE(widget()->windowFlags() & Qt::FramelessWindowHint) << "no frame to move it by";
  widget()->move(7, 9); // as a window manager may
  EXPECT_TRUE(centred());
  parent.setGeometry(300, 200, 500, 700);
  EXPECT_TRUE(centred());
  const QRect screen = parent.screen()->availableGeometry();
  for (const QPoint edge : {screen.topLeft(), screen.bottomRight()}) {
    parent.setGeometry(QRect(edge - QPoint(50, 50), QSize(100, 100)));
    EXPECT_TRUE(QTest::qWaitFor([&] { return screen.contains(widget()->geometry()); }));
  }
}

TEST(DimmingOverlayTest, CoversItsParentAndGoesWithIt) {
  QWidget parent;
  parent.setStyleSheet("background: white");
  parent.resize(300, 200);
  parent.show();
  auto overlay = QtWindows("").makeOverlay(&parent);
  bool arrived = false;
  overlay->animateAlpha(0.3, [&] { arrived = true; });
  EXPECT_FALSE(arrived);
  ASSERT_TRUE(QTest::qWaitFor([&] { return arrived; }));
  parent.resize(500, 400);
  EXPECT_NEAR(parent.grab().toImage().pixelColor(480, 380).red(), 255 * 0.7, 2);
  overlay.reset();
  EXPECT_EQ(parent.grab().toImage().pixelColor(480, 380), QColor(Qt::white));
}

TEST(DimmingOverlayTest, CompletionsNeedNoParent) {
  int completions = 0;
  const auto count = [&completions] { ++completions; };
  auto parent = std::make_unique<QWidget>();
  const auto orphan = QtWindows("").makeOverlay(parent.get());
  auto dropped = QtWindows("").makeOverlay(parent.get());
  dropped->animateAlpha(0.3, count);
  dropped.reset();
  parent.reset();
  orphan->animateAlpha(0.3, count);
  EXPECT_EQ(completions, 1);
  QtWindows("").makeOverlay(nullptr)->animateAlpha(0.3, count);
  EXPECT_EQ(completions, 2);
}

} // namespace
} // namespace wrenvale::platform
