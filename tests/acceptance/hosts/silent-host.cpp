// A host that calls nothing of the framework. Its argument says what application object it has:
//   core    a QCoreApplication and an event loop
//   splash  turns of the event loop before it runs, then a QApplication's loop
//   early   an application object of its own for the arguments, gone before the real one
//   noloop  an application object, but never an event loop
//   none    no Qt at all
//   static  an application object that is destroyed at exit
//   leak    an application object that is never destroyed, and exit() from inside the loop
// It ends by itself after half a second in the loop.

#include <cstdlib>
#include <string_view>

#include <QApplication>
#include <QTimer>

namespace {

void turnForAWhile() {
  QTimer done;
  done.setSingleShot(true);
  done.start(100);
  while (done.isActive())
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

int runLoop(bool exits) {
  QTimer::singleShot(500, qApp, [exits] { exits ? std::exit(0) : QCoreApplication::quit(); });
  return QCoreApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
  const std::string_view kind = argc > 1 ? argv[1] : "none";
  if (kind == "none") return 0;
  if (kind == "early") QCoreApplication(argc, argv).applicationName();
  if (kind == "core" || kind == "early") {
    const QCoreApplication application(argc, argv);
    return runLoop(false);
  }
  if (kind == "static") {
    static const QApplication application(argc, argv);
    return runLoop(false);
  }
  auto* application = new QApplication(argc, argv);
  if (kind == "leak") return runLoop(true);
  if (kind == "noloop" || kind == "splash") turnForAWhile();
  const int status = kind == "noloop" ? 0 : runLoop(false);
  delete application;
  return status;
}
