#include "desktop/webview/Engine.h"

#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QOpenGLContext>
#include <QQuickWindow>
#include <QStringList>

#include "base/Log.h"

namespace wrenvale::platform {

namespace {

// When the variable is set, the engine looks nowhere else.
QStringList placesOf(const char* variable, const QStringList& usual) {
  const QString given = qEnvironmentVariable(variable);
  return given.isEmpty() ? usual : QStringList(given);
}

bool isProgramThere() {
  const QString name = "/QtWebEngineProcess";
  for (const QString& place :
       placesOf("QTWEBENGINEPROCESS_PATH",
                {QLibraryInfo::path(QLibraryInfo::LibraryExecutablesPath) + name,
                 QCoreApplication::applicationDirPath() + name}))
    if (QFileInfo(place).isFile() && QFileInfo(place).isExecutable()) return true;
  return false;
}

bool isDataThere() {
  const QString usual = QLibraryInfo::path(QLibraryInfo::DataPath);
  for (const QString& place :
       placesOf("QTWEBENGINE_RESOURCES_PATH",
                {usual + "/resources", usual, QCoreApplication::applicationDirPath()}))
    if (QFileInfo(place + "/qtwebengine_resources.pak").isReadable()) return true;
  return false;
}

bool isSandboxSwitchedOff() {
  return qEnvironmentVariableIntValue("QTWEBENGINE_DISABLE_SANDBOX") != 0 ||
         qgetenv("QTWEBENGINE_CHROMIUM_FLAGS").split(' ').contains("--no-sandbox");
}

// Tries what the engine does: starts a process with namespaces of its own, which shares this one's
// memory and ends at once while this thread waits.
bool grantsNamespaces() {
  alignas(16) static std::array<char, 16384> stack;
  const auto end = [](void*) { return 0; };
  constexpr int flags = CLONE_VM | CLONE_VFORK | CLONE_NEWUSER | CLONE_NEWPID | CLONE_NEWNET;
  const pid_t process = ::clone(end, stack.data() + stack.size(), flags, nullptr);
  int status = -1;
  if (process > 0) ::waitpid(process, &status, __WCLONE);
  return process > 0 && status == 0;
}

bool canBeSandboxed() {
  return isSandboxSwitchedOff() || (::geteuid() != 0 && grantsNamespaces());
}

bool hasSharedMemory() {
  return ::access("/dev/shm", R_OK | W_OK | X_OK) == 0;
}

} // namespace

bool engineCanStart() {
  const char* const obstacle = !QOpenGLContext::globalShareContext()
                                   ? "nothing to share drawing with"
                               : !isProgramThere()  ? "its program is missing"
                               : !isDataThere()     ? "its data is missing"
                               : !canBeSandboxed()  ? "no sandbox: run as root, or no namespaces"
                               : !hasSharedMemory() ? "no shared memory (/dev/shm)"
                                                    : nullptr;
  if (obstacle)
    log::say("modules", [&] { return std::string("the web engine is not started: ") + obstacle; });
  return !obstacle;
}

void chooseDrawing() {
  if (!QOpenGLContext::globalShareContext()->isValid())
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

} // namespace wrenvale::platform
