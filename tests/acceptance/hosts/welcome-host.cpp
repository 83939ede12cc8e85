// A host that asks for its welcome window as soon as it can. Its argument says how it ends, after
// as many milliseconds as its second argument says, or once the window is "shown":
//   quit    it leaves its event loop
//   exit    it ends from inside its event loop, with its application object still there
//   delete  it deletes all windows that there are, and leaves its event loop
//   again   it does the whole once more with another application object, in the same process

#include <algorithm>
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

int run(int argc, char** argv, const char* end, const char* time) {
  auto* application = new QApplication(argc, argv);
  const bool waits = std::strcmp(time, "shown") == 0;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, application, [&timer, end, waits] {
    if (waits && !isWindowShown()) return;
    timer.stop();
    if (std::strcmp(end, "exit") == 0) std::exit(0);
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
