// The recommender window itself, without a web view in it.

#include <cmath>
#include <fstream>
#include <limits>

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>

#include "desktop/qt/app/QtWindows.h"
#include "desktop/qt/app/WindowFrame.h"

namespace wrenvale::platform {
namespace {

constexpr double kHuge = 9.3e18;
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

QRectF rect(const Frame& frame) {
  return {frame.x, frame.y, frame.width, frame.height};
}

struct Delegate : RecommenderWindowDelegate {
  void didClearWindowObject(std::string_view) override { ADD_FAILURE(); }
  std::optional<Value> invokeScriptMethod(std::string_view, const std::vector<Value>&) override {
    return std::nullopt;
  }
  PolicyDecision decidePolicyForNavigationAction(const NavigationAction&) override {
    return PolicyDecision::kUse;
  }
  void didFailProvisionalLoad(const LoadError& error, bool isMainFrame) override {
    EXPECT_TRUE(isMainFrame);
    failures.push_back(error.url);
  }
  void windowWillClose() override { ++closed; }

  std::vector<std::string> failures;
  int closed = 0;
};

class RecommenderWindowTest : public testing::Test {
protected:
  ~RecommenderWindowTest() override {
    window_.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  static QWidget& widget() {
    for (auto* found : QApplication::topLevelWidgets())
      if (found->objectName() == "Recommender") return *found;
    throw std::runtime_error("no window");
  }
  void show() {
    window_->makeKeyAndOrderFront();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&widget()));
  }
  static QMessageBox* sheet() {
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  }

  Delegate delegate_;
  QtWindows windows_{""};
  std::unique_ptr<RecommenderWindow> window_ = windows_.makeRecommenderWindow(delegate_);
};

TEST_F(RecommenderWindowTest, WithoutAModuleNoPageCanBeFetched) {
  const QTemporaryDir folder;
  const std::string garbage = folder.filePath("garbage.so").toStdString();
  std::ofstream(garbage) << "\x7f"
                            "ELF and then nothing";
  for (const std::string& path : {std::string(), garbage, garbage + ".missing",
                                  folder.path().toStdString(), std::string("/proc/self/exe")}) {
    QtWindows windows(path);
    for (const char* url : {"http://first", "http://second"}) {
      delegate_.failures.clear();
      window_ = windows.makeRecommenderWindow(delegate_);
      window_->loadRequest({.url = url, .applicationName = {}});
      EXPECT_TRUE(delegate_.failures.empty()) << path << ": within a call of the window's";
      EXPECT_TRUE(QTest::qWaitFor([&] { return !delegate_.failures.empty(); })) << path;
      EXPECT_EQ(delegate_.failures, std::vector<std::string>{url}) << path;
      EXPECT_EQ(window_->webView(), nullptr) << path;
    }
    window_.reset();
  }
}

TEST(WindowFrame, StaysOnTheScreen) {
  const QRect screen(0, 30, 1000, 700);
  const QSize smallest(100, 80);
  const struct {
    Frame wanted;
    QRectF frame;
  } rows[] = {
      {{100, 200, 640, 480}, {100, 200, 640, 480}},
      {{900, 600, 640, 480}, {360, 250, 640, 480}},
      {{300, 300, -400, -200}, {50, 160, 100, 80}},
      {{-kHuge / 2, -kHuge / 2, kHuge, kHuge}, {0, 30, 1000, 700}},
      {{kHuge, -kHuge, -kHuge, kHuge}, {900, 30, 100, 700}},
      {{kNaN, kNaN, kNaN, kNaN}, {0, 30, 100, 80}},
      {{99.6, 199.5, 640.4, 480.5}, {99.6, 199.5, 640.4, 480.5}},
  };
  for (const auto& row : rows)
    EXPECT_EQ(rect(frameOnScreen(row.wanted, smallest, screen)), row.frame) << &row - rows;
  EXPECT_EQ(rect(frameOnScreen({0, 0, 50, 50}, {2000, 900}, screen)), QRectF(0, 30, 2000, 900));
}

// As a page resizes it, around its centre: once a size is reached, or before that.
TEST_F(RecommenderWindowTest, MovesWhereItIsToldHoweverOften) {
  const auto resize = [this](int height) {
    const Frame now = window_->frame();
    Frame next = window_->frameForContentSize(400, height);
    next.x = std::round(now.x + (now.width - next.width) / 2);
    next.y = now.y + (now.height - next.height) / 2;
    window_->setFrame(next, window_->isVisible());
  };
  const auto arrives = [](int height) {
    const bool arrived =
        QTest::qWaitFor([&] { return widget().size() == QSize(400, height); }, 2000);
    QTest::qWait(widget().isVisible() ? 100 : 0); // for what the server has to say to it
    return arrived;
  };
  for (const bool shown : {false, true}) {
    if (shown) show();
    const QRect screen = widget().screen()->availableGeometry();
    const QPoint place = screen.topLeft() + QPoint(40, 160);
    Frame frame = window_->frameForContentSize(400, 300);
    frame.x = place.x(), frame.y = place.y();
    window_->setFrame(frame, shown);
    EXPECT_EQ(rect(window_->frame()), rect(frame)) << "already while it moves";
    EXPECT_TRUE(arrives(300));
    for (int i = 0; i < 50; ++i)
      for (const int height : {421, 300}) {
        resize(height);
        if (i % 10 == 0) {
          EXPECT_TRUE(arrives(height)) << shown;
        }
      }
    EXPECT_TRUE(arrives(300)) << shown;
    EXPECT_EQ(widget().pos(), place) << shown;
    EXPECT_EQ(rect(window_->frame()), rect(frame));
    window_->setFrame({.x = 0, .y = 0, .width = kHuge, .height = -kHuge}, shown);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return widget().frameGeometry().width() == screen.width(); }));
  }
}

TEST_F(RecommenderWindowTest, AsksInSheets) {
  const Alert alert{.title = "Photo Tool",
                    .messageText = "Thank you",
                    .informativeText = "Try it",
                    .defaultButton = "A&B",
                    .alternateButton = "Cancel"};
  std::vector<int> answers;
  const auto answered = [&](int answer) { answers.push_back(answer); };
  window_->beginSheet(alert, answered);
  EXPECT_EQ(sheet(), nullptr) << "a hidden window's sheet waits for it";
  show();
  const auto press = [](const char* label) {
    for (auto* button : sheet()->buttons())
      if (button->text() == label) return button->click();
    ADD_FAILURE() << label;
  };
  ASSERT_TRUE(sheet());
  EXPECT_EQ(sheet()->text(), "Thank you");
  EXPECT_EQ(sheet()->windowModality(), Qt::WindowModal);
  press("A&&B");
  window_->beginSheet(alert, answered);
  press("Cancel");
  window_->beginSheet(alert, answered);
  sheet()->reject();
  window_->beginSheet(alert, answered);
  delete sheet();
  EXPECT_EQ(answers, (std::vector{1, 0, 0, 0}));
}

TEST_F(RecommenderWindowTest, LooksTheSameInEveryHost) {
  qApp->setStyleSheet("* { background: black; color: red; margin: 9px; }");
  window_->setTitle("Welcome to \xC3\x84pp");
  show();
  EXPECT_EQ(widget().windowTitle(), QString("Welcome to \u00C4pp"));
  const auto drawn = [] {
    const QImage image = widget().grab().toImage().convertToFormat(QImage::Format_RGB32);
    QRect where;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        if (image.pixel(x, y) != 0xffffffff) where |= QRect(x, y, 1, 1);
    return where;
  };
  const QRect spinner = drawn();
  EXPECT_LE((spinner.center() - widget().rect().center()).manhattanLength(), 2);
  const QImage before = widget().grab().toImage();
  EXPECT_TRUE(QTest::qWaitFor([&] { return widget().grab().toImage() != before; })) << "it spins";
  window_->revealWebView();
  EXPECT_TRUE(drawn().isEmpty());
  qApp->setStyleSheet({});
}

TEST_F(RecommenderWindowTest, IsClosedOnceByWhomever) {
  show();
  widget().close();
  EXPECT_EQ(delegate_.closed, 1);
  window_->close();
  window_->makeKeyAndOrderFront();
  EXPECT_FALSE(window_->isVisible());
  EXPECT_EQ(delegate_.closed, 1);
  window_ = windows_.makeRecommenderWindow(delegate_);
  window_.reset();
  EXPECT_EQ(delegate_.closed, 1) << "let go of, it tells nobody";
}

} // namespace
} // namespace wrenvale::platform
