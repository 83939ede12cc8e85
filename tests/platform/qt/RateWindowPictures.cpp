// wrenvale_rate_window_pictures <folder>: saves a picture of every state of the rate window, to be
// looked at. QT_SCALE_FACTOR chooses the scale.

#include <cstdio>
#include <functional>

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QMenuBar>
#include <QPainter>
#include <QPixmap>
#include <QStatusBar>
#include <QTextEdit>

#include "GermanTranslator.h"
#include "platform/Platform.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/QtRateWindows.h"

namespace {

using namespace wrenvale::platform;

class Mute : public RateWindowDelegate {
public:
  void buttonAction(RateButton) override {}
  bool windowShouldClose() override { return true; }
  void mouseEntered(std::int64_t) override {}
  void mouseExited(std::int64_t) override {}
};

QWidget* topLevel(const char* name) {
  for (auto* widget : QApplication::topLevelWidgets())
    if (widget->objectName() == QLatin1String(name) && widget->isVisible()) return widget;
  return nullptr;
}

void spin(int milliseconds) {
  QElapsedTimer timer;
  for (timer.start(); timer.elapsed() < milliseconds;)
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 10);
}

class Pictures {
public:
  explicit Pictures(QString folder)
      : folder_(std::move(folder)) {}

  void save(const QPixmap& picture, const char* name) {
    const QString file =
        folder_ + '/' + name + '.' + QString::number(picture.devicePixelRatio()) + "x.png";
    if (!picture.save(file)) failed_ = true;
    std::puts(qPrintable(file));
  }
  bool failed() const { return failed_; }

  std::unique_ptr<RateWindow> window(Mute& mute) {
    auto window = QtRateWindows().makeRateWindow(mute);
    for (std::int64_t mood = 0; mood < 3; ++mood)
      window->loadImage(mood, "smile-" + std::to_string(mood));
    window->showImage(0);
    window->setAppName("Photo Tool");
    window->setView(RateView::kRate, false);
    return window;
  }

  /// A picture of a free-standing window that `arrange` has brought into some state.
  void take(const char* name, const std::function<void(RateWindow&, QWidget&)>& arrange) {
    Mute mute;
    const auto made = window(mute);
    made->makeKeyAndOrderFront();
    QWidget& widget = *topLevel("Rate Window");
    spin(20); // the window becomes active
    arrange(*made, widget);
    save(widget.grab(), name);
  }

private:
  QString folder_;
  bool failed_ = false;
};

void hover(QWidget& window, const char* button) {
  auto* widget = window.findChild<QWidget*>(button);
  widget->setAttribute(Qt::WA_UnderMouse);
}

void takeStates(Pictures& pictures) {
  pictures.take("1-neutral", [](RateWindow&, QWidget&) {});
  pictures.take("2-like-hover", [](RateWindow& window, QWidget& widget) {
    window.showImage(2);
    hover(widget, "likeButton");
  });
  pictures.take("3-dislike-hover", [](RateWindow& window, QWidget& widget) {
    window.showImage(1);
    hover(widget, "dislikeButton");
  });
  pictures.take("4-pressed", [](RateWindow& window, QWidget& widget) {
    window.showImage(2);
    widget.findChild<QAbstractButton*>("likeButton")->setDown(true);
  });
  pictures.take("5-focus", [](RateWindow&, QWidget& widget) {
    widget.findChild<QWidget*>("likeButton")->setFocus(Qt::TabFocusReason);
  });
  pictures.take("5-focus-dislike", [](RateWindow&, QWidget& widget) {
    widget.findChild<QWidget*>("dislikeButton")->setFocus(Qt::TabFocusReason);
  });
  pictures.take("6-disabled", [](RateWindow&, QWidget& widget) {
    widget.findChild<QWidget*>("likeButton")->setEnabled(false);
    widget.findChild<QWidget*>("dislikeButton")->setEnabled(false);
  });
  pictures.take("7-push", [](RateWindow& window, QWidget&) {
    window.showImage(2);
    window.setView(RateView::kAppstore, true);
    spin(120);
  });
  pictures.take("8-store", [](RateWindow& window, QWidget&) {
    window.showImage(2);
    window.setView(RateView::kAppstore, false);
  });
  pictures.take("9-contact", [](RateWindow& window, QWidget&) {
    window.showImage(1);
    window.setView(RateView::kContact, false);
  });
  pictures.take("no-image", [](RateWindow& window, QWidget&) { window.showImage(7); });
}

void takeLanguages(Pictures& pictures) {
  GermanTranslator german;
  QCoreApplication::installTranslator(&german);
  pictures.take("german", [](RateWindow&, QWidget&) {});
  pictures.take("german-contact",
                [](RateWindow& window, QWidget&) { window.setView(RateView::kContact, false); });
  QCoreApplication::removeTranslator(&german);

  QApplication::setLayoutDirection(Qt::RightToLeft);
  pictures.take("right-to-left", [](RateWindow&, QWidget&) {});
  pictures.take("right-to-left-push", [](RateWindow& window, QWidget&) {
    window.setView(RateView::kContact, true);
    spin(90);
  });
  QApplication::setLayoutDirection(Qt::LeftToRight);
}

void takeDark(Pictures& pictures) {
  const QPalette before = QApplication::palette();
  QApplication::setPalette(QPalette(QColor(50, 50, 54), QColor(30, 30, 32)));
  pictures.take("dark-palette", [](RateWindow&, QWidget&) {});
  QApplication::setPalette(before);
  qApp->setStyleSheet("* { background: #202020; color: #f0f0f0; font-size: 8px; border: 2px solid "
                      "red; padding: 6px; }");
  pictures.take("dark-style-sheet", [](RateWindow&, QWidget&) {});
  qApp->setStyleSheet({});
}

void fill(QMainWindow& host) {
  host.setWindowTitle("Photo Tool");
  host.menuBar()->addMenu("File");
  host.menuBar()->addMenu("Help");
  auto* text = new QTextEdit;
  text->setText(QString("The host's own document. ").repeated(120));
  host.setCentralWidget(text);
  host.statusBar()->showMessage("Ready");
  host.setGeometry(40, 40, 720, 560);
  host.show();
}

void takeOverParent(Pictures& pictures, Qt::LayoutDirection direction, const char* name) {
  QApplication::setLayoutDirection(direction);
  QMainWindow host;
  fill(host);
  Mute mute;
  const auto overlay = QtRateWindows().makeOverlay(&host);
  overlay->animateAlpha(0.3, nullptr);
  const auto made = pictures.window(mute);
  made->attachToParent(&host);
  made->makeKeyAndOrderFront();
  spin(400);
  const QWidget& widget = *topLevel("Rate Window");
  QPixmap picture = host.grab();
  QPainter(&picture).drawPixmap(widget.pos() - host.pos(), const_cast<QWidget&>(widget).grab());
  pictures.save(picture, name);
  QApplication::setLayoutDirection(Qt::LeftToRight);
}

} // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  if (argc != 2) {
    std::fputs("usage: wrenvale_rate_window_pictures <folder>\n", stderr);
    return 2;
  }
  QtApplication(builtInSystemParts().userDefaults).registerFont("DroidSans-Regular", "ttf");
  Pictures pictures(QString::fromLocal8Bit(argv[1]));
  takeStates(pictures);
  takeLanguages(pictures);
  takeDark(pictures);
  takeOverParent(pictures, Qt::LeftToRight, "over-parent");
  takeOverParent(pictures, Qt::RightToLeft, "over-parent-right-to-left");
  return pictures.failed() ? 1 : 0;
}
