#include "desktop/qt/app/QtApplication.h"

#include <chrono>
#include <cstdlib>

#include <QApplication>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QWidget>

#include "desktop/qt/app/LaunchEvent.h"
#include "desktop/qt/app/Toolkit.h"

extern "C" {
extern const unsigned char wrenvale_droid_sans[];
extern const unsigned long wrenvale_droid_sans_size;
}

namespace wrenvale::platform {

namespace {

constexpr std::chrono::seconds kPatienceAtTermination(1);

QWidget* frontWindow() {
  if (auto* active = QApplication::activeWindow()) return active;
  for (auto* window : QApplication::topLevelWidgets())
    if (window->isVisible()) return window;
  return nullptr;
}

} // namespace

void QtApplication::observeDidFinishLaunching(std::function<void()> handler) {
  callWhenLaunched(std::move(handler));
}

void QtApplication::activateIgnoringOtherApps(bool) {
  if (!hasWindows()) return;
  if (auto* window = frontWindow()) {
    window->raise();
    window->activateWindow();
  }
}

void QtApplication::beep() {
  if (hasWindows()) QApplication::beep();
}

bool QtApplication::registerFont(std::string_view resource, std::string_view extension) {
  if (resource != "DroidSans-Regular" || extension != "ttf") return false;
  if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance())) return false;
  const auto data = QByteArray::fromRawData(reinterpret_cast<const char*>(wrenvale_droid_sans),
                                            static_cast<qsizetype>(wrenvale_droid_sans_size));
  return QFontDatabase::addApplicationFontFromData(data) >= 0;
}

// Without the destructors of the host, which expect to run on its main thread, and without the
// locks of its streams, which that thread may hold. The framework writes to standard error alone,
// unbuffered.
void QtApplication::terminate(int status) {
  userDefaults_.synchronize(kPatienceAtTermination);
  std::_Exit(status);
}

} // namespace wrenvale::platform
