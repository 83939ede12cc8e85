// A host that looks at itself: what is there before `main`, before the event loop, and what its
// settings do. Prints one "name: value" line for each thing that it finds.

#include <dirent.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>
#include <string_view>
#include <thread>

#include <QApplication>
#include <QTimer>

#include <wrenvale/KVXWrenvale.h>
#include <wrenvale/UserDefaults.h>

namespace {

// Initialised before `main`, like any global object of a host.
const std::string identifierBeforeMain =
    KVXWrenvale::sharedInstance().bundleID().value_or("(none)");

int threads() {
  int count = 0;
  DIR* tasks = opendir("/proc/self/task");
  while (const auto* entry = readdir(tasks))
    count += entry->d_name[0] != '.';
  closedir(tasks);
  return count;
}

bool isMapped(const char* library) {
  std::ifstream maps("/proc/self/maps");
  for (std::string line; std::getline(maps, line);)
    if (line.find(library) != std::string::npos) return true;
  return false;
}

void print(const char* name, const std::string& value) {
  std::printf("%s: %s\n", name, value.c_str());
  std::fflush(stdout);
}

void ask() {
  const bool asked = KVXWrenvale::sharedInstance().triggerRatingWithCompletitionHandler({});
  print("rating", asked ? "asked" : "not asked");
}

// Asks for a rating at the earliest moments that a host has.
int askEarly(int argc, char** argv, std::string_view when) {
  QApplication application(argc, argv);
  if (when == "before the loop") ask();
  if (when == "queued") QMetaObject::invokeMethod(&application, ask, Qt::QueuedConnection);
  if (when == "timer") QTimer::singleShot(0, ask);
  QTimer::singleShot(300, &application, &QCoreApplication::quit);
  return QApplication::exec();
}

// Encrypts while the main thread waits for input that never comes.
[[noreturn]] void encryptBesideReader() {
  int ends[2];
  if (pipe(ends) != 0) std::abort();
  std::thread([] { KVXWrenvale::sharedInstance().encryptString("email="); }).detach();
  std::fgetc(fdopen(ends[0], "r"));
  std::abort();
}

} // namespace

int main(int argc, char** argv) {
  if (argc > 2) return askEarly(argc, argv, argv[2]);
  if (argc > 1 && std::strcmp(argv[1], "encrypt beside reader") == 0) encryptBesideReader();
  auto& service = KVXWrenvale::sharedInstance();
  print("identifier before main", identifierBeforeMain);
  print("name", service.appName());
  print("build", std::to_string(service.bundleVersion()));
  if (argc > 1 && std::strcmp(argv[1], "encrypt") == 0) {
    const auto text = service.encryptString("email=someone@example.com");
    print("encrypted", text.value_or("(nothing)"));
    return 0;
  }

  const int threadsBefore = threads();
  QCoreApplication application(argc, argv);
  // Whatever threads Qt itself started are there in a host without the framework too.
  print("threads before the loop", std::to_string(threads() - threadsBefore + 1));
  for (const char* library : {"libQt6Network", "libcrypto", "libssl", "libwrenvale-net"})
    print(library, isMapped(library) ? "mapped" : "not mapped");

  print("alert", service.triggerRatingWithModalAlert() ? "shown" : "not shown");

  auto& defaults = UserDefaults::standardUserDefaults();
  defaults.addObserver("Show Update Window", [&] {
    print("observed", defaults.boolForKey("Show Update Window") ? "true" : "false");
  });
  defaults.setObject(wrenvale::Value::Array{"product.one"}, "Purchases");
  QTimer::singleShot(1000, &application, &QCoreApplication::quit);
  return application.exec();
}
