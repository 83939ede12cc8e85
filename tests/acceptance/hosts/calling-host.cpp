// A host that calls the framework. Its arguments say what it does:
//   (none)                 looks at itself: what is there before `main` and before the event loop,
//                          and what its settings do; a "name: value" line for each thing
//   encrypt [beside reader]  encrypts; while the main thread waits for input that never comes
//   ask WHEN               asks for a rating as early as a host can: "before the loop", "queued",
//                          or with a first "timer"
// or, with a welcome window as soon as it can, how it ends, and when: after so many milliseconds,
// or once the window is "shown":
//   quit TIME    it leaves its event loop
//   exit TIME    it ends from inside its event loop, with its application object still there; says
//                "in order" if Qt's routines for the end are called all the same. Once the window
//                is shown, a child process does so before
//   close TIME   it closes all windows, and ends like "exit" before anything of them is deleted
//   delete TIME  it deletes all windows that there are, and leaves its event loop
//   again TIME   it does the whole once more with another application object, in the same process

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <wrenvale/KVXWrenvale.h>
#include <wrenvale/UserDefaults.h>

namespace {

auto& service() {
  return KVXWrenvale::sharedInstance();
}

// Initialised before `main`, like any global object of a host.
const std::string identifierBeforeMain = service().bundleID().value_or("(none)");

void print(const char* name, const std::string& value) {
  std::printf("%s: %s\n", name, value.c_str());
  std::fflush(stdout);
}

int encrypt(bool besideReader) {
  const auto encrypted = [] {
    print("encrypted", service().encryptString("email=someone@example.com").value_or("(nothing)"));
  };
  if (!besideReader) return encrypted(), 0;
  int ends[2];
  if (pipe(ends) != 0) std::abort();
  std::thread(encrypted).detach();
  std::fgetc(fdopen(ends[0], "r"));
  std::abort();
}

int askEarly(int argc, char** argv, const std::string& when) {
  const auto ask = [] {
    const bool asked = service().triggerRatingWithCompletitionHandler({});
    print("rating", asked ? "asked" : "not asked");
  };
  QApplication application(argc, argv);
  if (when == "before the loop") ask();
  if (when == "queued") QMetaObject::invokeMethod(&application, ask, Qt::QueuedConnection);
  if (when == "timer") QTimer::singleShot(0, ask);
  QTimer::singleShot(300, &application, &QCoreApplication::quit);
  return QApplication::exec();
}

int inspect(int argc, char** argv) {
  print("identifier before main", identifierBeforeMain);
  print("name", service().appName());
  print("build", std::to_string(service().bundleVersion()));
  QCoreApplication application(argc, argv);
  print("alert", service().triggerRatingWithModalAlert() ? "shown" : "not shown");

  auto& defaults = UserDefaults::standardUserDefaults();
  defaults.addObserver("Show Update Window", [&] {
    print("observed", defaults.boolForKey("Show Update Window") ? "true" : "false");
  });
  defaults.setObject(wrenvale::Value::Array{"product.one"}, "Purchases");
  QTimer::singleShot(1000, &application, &QCoreApplication::quit);
  return QCoreApplication::exec();
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

int welcome(int argc, char** argv, const std::string& end, const std::string& time) {
  auto* application = new QApplication(argc, argv);
  const bool waits = time == "shown";
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, application, [&] {
    if (waits && !isWindowShown()) return;
    timer.stop();
    if (end == "close") QApplication::closeAllWindows();
    if (end == "close" || end == "exit") endWithoutUnwinding(waits);
    while (end == "delete" && !QApplication::topLevelWidgets().isEmpty())
      delete QApplication::topLevelWidgets().first();
    QCoreApplication::quit();
  });
  timer.start(waits ? 10 : std::stoi(time));
  service().triggerWelcomeWindow();
  const int status = QApplication::exec();
  delete application;
  return end == "again" ? welcome(argc, argv, "quit", "250") : status;
}

} // namespace

int main(int argc, char** argv) {
  if (argc == 1) return inspect(argc, argv);
  const std::string what = argv[1];
  const std::string more = argc > 2 ? argv[2] : "";
  if (what == "encrypt") return encrypt(more == "beside reader");
  if (what == "ask") return askEarly(argc, argv, more);
  return welcome(argc, argv, what, more);
}
