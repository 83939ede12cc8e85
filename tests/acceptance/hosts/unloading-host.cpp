// A host that loads the framework by itself, unloads it once it has launched, and goes on.
//
// usage: unloading-host LIBRARY

#include <dlfcn.h>

#include <QApplication>
#include <QTimer>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  void* const library = argc == 2 ? dlopen(argv[1], RTLD_NOW) : nullptr;
  if (!library) return 2;
  QTimer::singleShot(20, [library] { dlclose(library); });
  QTimer::singleShot(300, [] { QCoreApplication::quit(); });
  return QApplication::exec();
}
