#include "desktop/qt/recommender/WebViewModuleLoader.h"

#include <filesystem>
#include <utility>

#include <QCoreApplication>
#include <QOpenGLContext>

#include "base/Log.h"
#include "desktop/Modules.h"

QT_BEGIN_NAMESPACE
// How Qt's own libraries set what Qt::AA_ShareOpenGLContexts asks for.
Q_GUI_EXPORT void qt_gl_set_global_share_context(QOpenGLContext* context);
QT_END_NAMESPACE

namespace wrenvale::platform {

namespace {

void endSharing() {
  delete QOpenGLContext::globalShareContext();
  qt_gl_set_global_share_context(nullptr);
}

// When it is loaded, the engine looks for the context that all others share with. A host that wants
// one has asked Qt for it at its start. For all other hosts it is made here, since it would cost
// each launch tens of milliseconds. Without OpenGL the context is not valid. It is destroyed after
// the engine, whose end is registered later and so comes first.
void shareContexts() {
  if (QOpenGLContext::globalShareContext()) return;
  auto* context = new QOpenGLContext;
  context->create();
  qt_gl_set_global_share_context(context);
  qAddPostRoutine(endSharing);
}

} // namespace

WebViewModule* WebViewModuleLoader::module() {
  if (std::exchange(wasLookedFor_, true)) return module_;
  std::error_code error;
  if (!std::filesystem::exists(path_, error)) {
    log::say("modules", [this] { return "there is no " + path_; });
    return nullptr;
  }
  shareContexts();
  const auto entry = reinterpret_cast<WebViewModuleEntry>(moduleEntry(path_, kWebViewModuleEntry));
  if (entry) module_ = entry(log::sink);
  return module_;
}

} // namespace wrenvale::platform
