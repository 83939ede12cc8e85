// A real rate window, driven as a person drives it.

#ifndef WRENVALE_TESTS_DESKTOP_QT_RATEWINDOWFIXTURE_H
#define WRENVALE_TESTS_DESKTOP_QT_RATEWINDOWFIXTURE_H

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include <QApplication>
#include <QPushButton>
#include <QTest>

#include "desktop/qt/app/QtWindows.h"

namespace wrenvale::platform {

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
  void hovered(RateButton button, bool inside) override {
    calls.push_back((inside ? "entered " : "exited ") + std::to_string(static_cast<int>(button)));
  }

  std::vector<std::string> calls;
  std::function<void(RateButton)> onButton;
  std::function<bool()> onClose;
};

class RateWindowFixture : public testing::Test {
protected:
  RateWindowFixture() { window_->showImage("smile-0"); }
  ~RateWindowFixture() override { destroy(); }

  void destroy() {
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
  static bool waitForPush() {
    return QTest::qWaitFor([] {
      int visible = 0;
      for (const char* view : {"rateView", "appstoreView", "contactView"})
        visible += outlet(view).isVisible();
      return visible == 1;
    });
  }

  RecordingDelegate delegate_;
  QtWindows windows_{""};
  std::unique_ptr<RateWindow> window_ = windows_.makeRateWindow(delegate_, "Photo Tool");
};

} // namespace wrenvale::platform

#endif
