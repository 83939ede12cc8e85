// A host of the framework's whose welcome window is due.
//
// usage: welcome-benchmark-host <start in ns> once | stay | reopen
//   once: quits when the page shows the window; stay: two seconds later, and says for how long the
//   main thread was busy in a row before the window was shown, and after;
//   reopen: closes the window each time and asks for it again, twenty times.

#include <string_view>

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <wrenvale/KVXWrenvale.h>

#include "benchmarks/welcome/Heartbeat.h"
#include "benchmarks/welcome/Moment.h"

namespace {

using namespace wrenvale::benchmark;
using namespace std::chrono_literals;

constexpr int kReopenings = 20;

class Watch : public QObject {
public:
  Watch(const char* started, std::string_view what)
      : started_(started)
      , what_(what) {
    qApp->installEventFilter(this);
  }

  void ask() {
    asked_ = now();
    KVXWrenvale::sharedInstance().triggerWelcomeWindow();
  }

  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::Show && object->isWidgetType() &&
        object->objectName() == "Recommender")
      shown(static_cast<QWidget*>(object));
    return false;
  }

private:
  void shown(QWidget* window) {
    if (what_ != "reopen" || closed_ == 0) printShown(asked_, started_);
    if (what_ == "once") return QCoreApplication::exit();
    if (what_ == "stay") return stay();
    QTimer::singleShot(100ms, window, [window] { window->close(); });
    QTimer::singleShot(600ms, this, [this] { closed(); });
  }

  void stay() {
    std::printf("busy %.2f", heartbeat_.longestPause());
    QTimer::singleShot(2s, this, [this] {
      std::printf(" %.2f\n", heartbeat_.longestPause());
      QCoreApplication::exit();
    });
  }

  void closed() {
    ++closed_;
    if (closed_ == 1) printMemory("first");
    if (closed_ <= kReopenings) return ask();
    printMemory("last");
    QCoreApplication::exit();
  }

  const char* const started_;
  const std::string_view what_;
  Heartbeat heartbeat_;
  long long asked_ = 0;
  int closed_ = 0;
};

} // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  if (argc != 3) return 2;
  QWidget window;
  window.show();
  Watch watch(argv[1], argv[2]);
  if (std::string_view(argv[2]) != "reopen") {
    watch.ask();
  } else {
    QTimer::singleShot(1s, qApp, [&watch] {
      printMemory("before");
      watch.ask();
    });
  }
  QTimer::singleShot(120s, qApp, [] { QCoreApplication::exit(1); });
  return QApplication::exec();
}
