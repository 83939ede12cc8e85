#include "RateWindowFixture.h"

#include <QEnterEvent>
#include <QLabel>
#include <QProxyStyle>
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
  static void hover(const char* name, bool inside) {
    QEnterEvent enter({1, 1}, {1, 1}, {1, 1});
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&outlet(name), inside ? &enter : &leave);
  }
  static void activate(QWidget& window) {
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  }
};

TEST_F(QtRateWindowTest, OnePressForOneTransition) {
  pushOnLike();
  open();
  QTest::mouseDClick(&outlet("dislikeButton"), Qt::LeftButton);
  QTest::mouseRelease(&outlet("dislikeButton"), Qt::LeftButton);
  EXPECT_THAT(delegate_.calls, ElementsAre()) << "a second click presses nothing";
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

// A desktop that wants no animations.
class StillStyle final : public QProxyStyle {
public:
  StillStyle()
      : QProxyStyle("fusion") {}
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    return hint == SH_Widget_Animation_Duration
               ? 0
               : QProxyStyle::styleHint(hint, option, widget, data);
  }
};

TEST_F(QtRateWindowTest, HoveringIsToldOfThePresentViewOfTheActiveWindow) {
  QApplication::setStyle(new StillStyle);
  QWidget other;
  pushOnLike();
  open();
  hover("likeButton", true);
  activate(other);
  EXPECT_THAT(delegate_.calls, ElementsAre("entered 0", "exited 0"));
  hover("likeButton", false);
  hover("dislikeButton", true);
  EXPECT_EQ(delegate_.calls.size(), 2U);
  activate(*widget());
  hover("dislikeButton", false);
  hover("likeButton", true);
  hover("appstoreButton", true); // of another view
  click("likeButton");
  hover("likeButton", false); // went away under the pointer
  EXPECT_THAT(delegate_.calls, ElementsAre("entered 0", "exited 0", "entered 1", "exited 1",
                                           "entered 0", "button 0"));
  QApplication::setStyle("fusion");
}

// On a display the old view is hidden, and so left by the pointer, before the new one is there.
TEST_F(QtRateWindowTest, AViewThatGoesFromUnderThePointerIsNotLeft) {
  if (QGuiApplication::platformName() == "offscreen") GTEST_SKIP() << "has no pointer";
  pushOnLike();
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
  QWidget parent;
  pushOnLike();
  openOver(parent);
  QTest::keyClick(widget()->focusWidget(), Qt::Key_Return);
  EXPECT_THAT(delegate_.calls, ElementsAre()) << "a key meant for another window";
  for (const char* button : {"dislikeButton", "likeButton"}) {
    QTest::keyClick(widget()->focusWidget(), Qt::Key_Tab);
    ASSERT_EQ(widget()->focusWidget(), &outlet(button));
  }
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
  const auto centred = [&] {
    return QTest::qWaitFor([&] {
      const QPoint middle = parent.frameGeometry().center() - widget()->rect().center();
      return (widget()->pos() - middle).manhattanLength() <= 2;
    });
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

TEST(DimmingOverlayTest, CoversItsParentAndCompletesWithoutOne) {
  auto parent = std::make_unique<QWidget>();
  int completions = 0;
  const auto count = [&completions] { ++completions; };
  const auto corner = [&] { return parent->grab().toImage().pixelColor(480, 380).red(); };
  parent->setStyleSheet("background: white");
  parent->show();
  auto overlay = QtWindows("").makeOverlay(parent.get());
  overlay->animateAlpha(0.3, count);
  EXPECT_EQ(completions, 0);
  ASSERT_TRUE(QTest::qWaitFor([&] { return completions == 1; }));
  parent->resize(500, 400);
  EXPECT_NEAR(corner(), 255 * 0.7, 2);
  overlay.reset();
  EXPECT_EQ(corner(), 255);

  const auto orphan = QtWindows("").makeOverlay(parent.get());
  auto dropped = QtWindows("").makeOverlay(parent.get());
  dropped->animateAlpha(0.3, count);
  dropped.reset();
  parent.reset();
  orphan->animateAlpha(0.3, count);
  QtWindows("").makeOverlay(nullptr)->animateAlpha(0.3, count);
  EXPECT_EQ(completions, 3);
}

} // namespace
} // namespace wrenvale::platform
