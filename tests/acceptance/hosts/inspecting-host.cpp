// A host that looks at itself: what is there before `main`, before the event loop, and what its
// settings do. Prints one "name: value" line for each thing that it finds.

#include <dirent.h>

#include <cstdio>
#include <cstring>
#include <fstream>
#include <string>

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

} // namespace

int main(int argc, char** argv) {
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

  auto& defaults = UserDefaults::standardUserDefaults();
  defaults.addObserver("Show Update Window", [&] {
    print("observed", defaults.boolForKey("Show Update Window") ? "true" : "false");
  });
  defaults.setObject(wrenvale::Value::Array{"product.one"}, "Purchases");
  QTimer::singleShot(1000, &application, &QCoreApplication::quit);
  return application.exec();
}
