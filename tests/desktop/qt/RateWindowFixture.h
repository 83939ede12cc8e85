// A real rate window, driven as a person drives it.

#ifndef WRENVALE_TESTS_DESKTOP_QT_RATEWINDOWFIXTURE_H
#define WRENVALE_TESTS_DESKTOP_QT_RATEWINDOWFIXTURE_H

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include <QApplication>
#include <QEnterEvent>
#include <QProxyStyle>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "desktop/qt/rate/QtRateWindows.h"

namespace wrenvale::platform {

/// Runs `body` in the application's event loop; false when that took too long.
inline bool runInApplication(const std::function<void()>& body) {
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

/// A desktop that wants no animations, as long as it lives.
class StillDesktop {
public:
  StillDesktop() { QApplication::setStyle(new Still("fusion")); }
  ~StillDesktop() { QApplication::setStyle("fusion"); }
  StillDesktop(const StillDesktop&) = delete;
  StillDesktop& operator=(const StillDesktop&) = delete;

private:
  class Still final : public QProxyStyle {
  public:
    using QProxyStyle::QProxyStyle;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
      if (hint == SH_Widget_Animation_Duration) return 0;
      return QProxyStyle::styleHint(hint, option, widget, data);
    }
  };
};

/// Writes down what the window reports; does what a test asks it to.
class RecordingDelegate : public RateWindowDelegate {
public:
  void buttonAction(RateButton sender) override {
    calls.push_back("button " + std::to_string(static_cast<int>(sender)));
    if (onButton) onButton(sender);
  }
  bool windowShouldClose() override {
    calls.push_back("should close");
    return !onClose || onClose();
  }
  void mouseEntered(std::int64_t mode) override {
    calls.push_back("entered " + std::to_string(mode));
  }
  void mouseExited(std::int64_t mode) override {
    calls.push_back("exited " + std::to_string(mode));
  }

  std::vector<std::string> calls;
  std::function<void(RateButton)> onButton;
  std::function<bool()> onClose;
};

class RateWindowFixture : public testing::Test {
protected:
  RateWindowFixture() {
    for (std::int64_t mood = 0; mood < 3; ++mood)
      window_->loadImage(mood, "smile-" + std::to_string(mood));
    window_->showImage(0);
    window_->setAppName("Photo Tool");
    window_->addTrackingArea(RateButton::kDislike, 1);
    window_->addTrackingArea(RateButton::kLike, 2);
    window_->setView(RateView::kRate, false);
  }
  ~RateWindowFixture() override {
    window_.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  void open() {
    window_->makeKeyAndOrderFront();
    EXPECT_TRUE(QTest::qWaitForWindowActive(widget()));
  }
  void openOver(QWidget& parent) {
    parent.setGeometry(100, 60, 640, 480);
    parent.show();
    window_->attachToParent(&parent);
    open();
  }

  /// The widget of the window; null when there is none.
  static QWidget* widget() {
    for (auto* found : QApplication::topLevelWidgets())
      if (found->objectName() == "Rate Window") return found;
    return nullptr;
  }
  static QWidget& outlet(const char* name) {
    auto* found = widget()->findChild<QWidget*>(name);
    if (!found) throw std::runtime_error(name);
    return *found;
  }
  static void click(const char* name) { QTest::mouseClick(&outlet(name), Qt::LeftButton); }
  static void hover(const char* name, bool inside) {
    QEnterEvent enter({1, 1}, {1, 1}, {1, 1});
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&outlet(name), inside ? &enter : &leave);
  }
  static bool waitForPush() {
    return QTest::qWaitFor([] {
      int visible = 0;
      for (const char* view : {"rateView", "appstoreView", "contactView"})
        visible += outlet(view).isVisible();
      return visible == 1;
    });
  }

  RecordingDelegate delegate_;
  std::unique_ptr<RateWindow> window_ = QtRateWindows().makeRateWindow(delegate_);
};

} // namespace wrenvale::platform

#endif
