#include "platform/WebViewModule.h"

#include <utility>

#include <wrenvale/Export.h>

#include <QCoreApplication>

#include "platform/webview/Engine.h"
#include "platform/webview/QtWebView.h"

namespace wrenvale::platform {

namespace {

class Module final : public WebViewModule {
public:
  std::unique_ptr<WebView> makeWebView(WebViewDelegate& delegate) override {
    if (hasEnded_ || (!hasStarted_ && !engineCanStart())) return nullptr;
    if (!hasStarted_) chooseDrawing();
    auto view = std::make_unique<QtWebView>(delegate);
    // Routines run in the reverse order, so this one comes before the engine's own.
    if (!std::exchange(hasStarted_, true)) qAddPostRoutine([] { module().end(); });
    return view;
  }

  static Module& module() {
    static auto& module = *new Module;
    return module;
  }

private:
  // The engine cannot be started once more, for another application object.
  void end() {
    hasEnded_ = true;
    QtWebView::endAll();
  }

  bool hasStarted_ = false;
  bool hasEnded_ = false;
};

} // namespace

} // namespace wrenvale::platform

extern "C" WRENVALE_EXPORT wrenvale::platform::WebViewModule* wrenvale_webview_module();

extern "C" wrenvale::platform::WebViewModule* wrenvale_webview_module() {
  return &wrenvale::platform::Module::module();
}
