// A host that quits: after a while, or once the welcome window is shown. Says the time at which it
// does; whoever started it sees when it is gone. Built with and without the framework.
//
// usage: exit-host after|shown

#include <cstdio>
#include <string_view>

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include "benchmarks/Figures.h"

#ifdef WITH_FRAMEWORK
#include <wrenvale/KVXWrenvale.h>
#endif

namespace {

using namespace std::chrono_literals;

void quit() {
  std::printf("%lld\n", wrenvale::benchmark::now());
  std::fflush(stdout);
  QCoreApplication::quit();
}

class QuitsWhenShown : public QObject {
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::Show && object->isWidgetType() &&
        object->objectName() == "Recommender")
      QTimer::singleShot(500ms, qApp, quit);
    return false;
  }
};

} // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 2) return 2;
  QWidget window;
  window.show();
  QuitsWhenShown filter;
#ifdef WITH_FRAMEWORK
  if (argv[1] == std::string_view("shown")) {
    application.installEventFilter(&filter);
    wrenvale::KVXWrenvale::sharedInstance().triggerWelcomeWindow();
    return QApplication::exec();
  }
#endif
  QTimer::singleShot(500ms, qApp, quit);
  return QApplication::exec();
}
