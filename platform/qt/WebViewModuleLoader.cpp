#include "platform/qt/WebViewModuleLoader.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <utility>

#include <QCoreApplication>
#include <QObject>
#include <QOpenGLContext>

#include "platform/Modules.h"

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

// The engine looks for a context that all others share with, as it is loaded. A host that wants one
// has asked for it before it had an application object; for all others it is made only now, as it
// would cost each launch tens of milliseconds. Without OpenGL it stays one that is not valid. It
// goes after the engine, whose end is registered later and so comes first.
void shareContexts() {
  if (QOpenGLContext::globalShareContext()) return;
  auto* context = new QOpenGLContext;
  context->create();
  qt_gl_set_global_share_context(context);
  qAddPostRoutine(endSharing);
}

// The load that the end of the process waits for.
std::shared_future<WebViewModuleEntry>& underWay() {
  static auto& entry = *new std::shared_future<WebViewModuleEntry>;
  return entry;
}

void awaitLoad() {
  if (underWay().valid()) underWay().wait();
}

} // namespace

WebViewModuleLoader::WebViewModuleLoader(std::string path, BackgroundThreads& threads)
    : path_(std::move(path))
    , threads_(threads) {}

WebViewModuleLoader::~WebViewModuleLoader() {
  if (entry_.valid()) entry_.wait();
}

void WebViewModuleLoader::load(Handler handler) {
  waiting_.push_back(std::move(handler));
  if (!entry_.valid()) return begin();
  if (entry_.wait_for(std::chrono::seconds(0)) == std::future_status::ready) tellLater();
}

void WebViewModuleLoader::begin() {
  const auto promise = std::make_shared<std::promise<WebViewModuleEntry>>();
  underWay() = entry_ = promise->get_future().share();
  receiver_ = std::make_unique<QObject>();
  const auto finish = [this, promise](void* entry) {
    tellLater(); // first, as this object may go with the promise kept
    promise->set_value(reinterpret_cast<WebViewModuleEntry>(entry));
  };
  std::error_code error;
  if (!std::filesystem::exists(path_, error)) return finish(nullptr);
  shareContexts();
  qAddPostRoutine(awaitLoad);
  std::atexit(awaitLoad); // a host may exit without the former
  const auto read = [finish, path = path_] { finish(moduleEntry(path, kWebViewModuleEntry)); };
  if (!threads_.run(read)) read();
}

void WebViewModuleLoader::tellLater() {
  QMetaObject::invokeMethod(
      receiver_.get(), [this] { tell(); }, Qt::QueuedConnection);
}

void WebViewModuleLoader::tell() {
  auto* module = entry_.get() ? entry_.get()() : nullptr;
  for (const auto& handler : std::exchange(waiting_, {}))
    handler(module);
}

} // namespace wrenvale::platform
