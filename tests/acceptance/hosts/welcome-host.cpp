// A host that asks for its welcome window as soon as it can. Its argument says how it ends, after
// as many milliseconds as its second argument says, or once the window is "shown":
//   quit    it leaves its event loop
//   exit    it ends from inside its event loop, with its application object still there; says
//           "in order" if Qt's routines for the end are called all the same. Once the window is
//           shown, a child process does so before
//   close   it closes all windows, and ends like "exit" before anything of them is deleted
//   delete  it deletes all windows that there are, and leaves its event loop
//   again   it does the whole once more with another application object, in the same process

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <wrenvale/KVXWrenvale.h>

namespace {

void deleteAllWindows() {
  while (!QApplication::topLevelWidgets().isEmpty())
    delete QApplication::topLevelWidgets().first();
}

bool isWindowShown() {
  const auto windows = QApplication::topLevelWidgets();
  return std::any_of(windows.begin(), windows.end(), [](auto* each) { return each->isVisible(); });
}

// The child has no thread but this one.
bool endsInAChild() {
  const pid_t child = ::fork();
  if (child == 0) {
    ::alarm(5); // rather than hanging
    std::exit(0);
  }
  int status = -1;
  return ::waitpid(child, &status, 0) == child && status == 0;
}

[[noreturn]] void endWithoutUnwinding(bool isShown) {
  if (isShown && !endsInAChild()) ::_exit(3);
  qAddPostRoutine([] { std::puts("in order"); });
  std::exit(0);
}

int run(int argc, char** argv, const char* end, const char* time) {
  auto* application = new QApplication(argc, argv);
  const bool waits = std::strcmp(time, "shown") == 0;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, application, [&timer, end, waits] {
    if (waits && !isWindowShown()) return;
    timer.stop();
    if (std::strcmp(end, "close") == 0) QApplication::closeAllWindows();
    if (std::strcmp(end, "close") == 0 || std::strcmp(end, "exit") == 0) endWithoutUnwinding(waits);
    if (std::strcmp(end, "delete") == 0) deleteAllWindows();
    QCoreApplication::quit();
  });
  timer.start(waits ? 10 : std::atoi(time));
  KVXWrenvale::sharedInstance().triggerWelcomeWindow();
  const int status = application->exec();
  delete application;
  return status;
}

} // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const int status = run(argc, argv, argv[1], argv[2]);
  return std::strcmp(argv[1], "again") == 0 ? run(argc, argv, "quit", "250") : status;
}
