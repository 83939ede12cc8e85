// A host that calls nothing of the framework. Its argument says what application object it has:
//   core    a QCoreApplication and an event loop
//   splash  turns of the event loop before it runs, then a QApplication's loop
//   early   an application object of its own for the arguments, gone before the real one
//   noloop  an application object, but never an event loop
//   none    no Qt at all
//   leak    an application object that is never destroyed, and exit() from inside the loop
// It ends by itself after half a second in the loop.

#include <cstdlib>
#include <cstring>
#include <memory>

#include <QApplication>
#include <QTimer>

namespace {

int runFor(QCoreApplication& application, std::chrono::milliseconds time) {
  QTimer::singleShot(time, &application, &QCoreApplication::quit);
  return application.exec();
}

void turnForAWhile() {
  QTimer done;
  done.setSingleShot(true);
  done.start(100);
  while (done.isActive())
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

} // namespace

int main(int argc, char** argv) {
  const char* kind = argc > 1 ? argv[1] : "";
  const auto is = [kind](const char* name) { return std::strcmp(kind, name) == 0; };
  constexpr std::chrono::milliseconds halfASecond{500};

  if (is("none")) return 0;
  if (is("early")) QCoreApplication(argc, argv).applicationName();
  if (is("core") || is("early")) {
    QCoreApplication application(argc, argv);
    return runFor(application, halfASecond);
  }
  if (is("leak")) {
    auto* application = new QApplication(argc, argv);
    QTimer::singleShot(halfASecond, application, [] { std::exit(0); });
    return application->exec();
  }
  QApplication application(argc, argv);
  if (is("noloop")) {
    turnForAWhile();
    return 0;
  }
  if (is("splash")) turnForAWhile();
  return runFor(application, halfASecond);
}
