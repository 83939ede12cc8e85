#include "desktop/Modules.h"

#include <utility>

#include <wrenvale/Export.h>

#include "desktop/webview/Engine.h"
#include "desktop/webview/EngineEnd.h"
#include "desktop/webview/QtWebView.h"

namespace wrenvale::platform {

namespace {

class Module final : public WebViewModule {
public:
  LoadedWebView makeWebView(WebViewDelegate& delegate, const PageRequest& request) override {
    if (hasEngineEnded() || (!hasStarted_ && !engineCanStart())) return {};
    if (!std::exchange(hasStarted_, true)) chooseDrawing();
    auto view = std::make_unique<QtWebView>(delegate, request);
    auto* widget = view->widget();
    return {std::move(view), widget};
  }

private:
  bool hasStarted_ = false;
};

} // namespace

} // namespace wrenvale::platform

extern "C" WRENVALE_EXPORT wrenvale::platform::WebViewModule*
wrenvale_webview_module(wrenvale::log::Sink sink);

extern "C" wrenvale::platform::WebViewModule* wrenvale_webview_module(wrenvale::log::Sink sink) {
  wrenvale::log::sink = sink;
  static auto& module = *new wrenvale::platform::Module;
  return &module;
}
