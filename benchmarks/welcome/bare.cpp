// The same page in a program that has nothing else to do. It is linked to the web engine, or, built
// with ENGINE_PAGE as the path of a library that is, loads the engine when it is asked for the
// page, as a host of the framework's does.
//
// usage: welcome-benchmark-bare <start in ns> <address>

#include <QApplication>
#include <QOpenGLContext>
#include <QWidget>

#include <dlfcn.h>

#include "benchmarks/welcome/EnginePage.h"
#include "benchmarks/welcome/Moment.h"

#ifdef ENGINE_PAGE
QT_BEGIN_NAMESPACE
// What Qt::AA_ShareOpenGLContexts would have done at the start.
Q_GUI_EXPORT void qt_gl_set_global_share_context(QOpenGLContext* context);
QT_END_NAMESPACE

static decltype(&showPage) engine() {
  auto* context = new QOpenGLContext;
  context->create();
  qt_gl_set_global_share_context(context);
  void* library = dlopen(ENGINE_PAGE, RTLD_NOW | RTLD_LOCAL);
  return library ? reinterpret_cast<decltype(&showPage)>(dlsym(library, "showPage")) : nullptr;
}
#else
static decltype(&showPage) engine() {
  return showPage;
}
#endif

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 3) return 2;
  QWidget window;
  window.show();
  const auto asked = wrenvale::benchmark::now();
  const auto show = engine();
  return show ? show(asked, argv[1], argv[2]) : 2;
}
