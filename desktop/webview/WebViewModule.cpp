#include "desktop/WebViewModule.h"

#include <utility>

#include <wrenvale/Export.h>

#include "desktop/webview/Engine.h"
#include "desktop/webview/EngineEnd.h"
#include "desktop/webview/QtWebView.h"

namespace wrenvale::platform {

namespace {

class Module final : public WebViewModule {
public:
  std::unique_ptr<WebView> makeWebView(WebViewDelegate& delegate) override {
    if (hasEngineEnded() || (!hasStarted_ && !engineCanStart())) return nullptr;
    if (!std::exchange(hasStarted_, true)) chooseDrawing();
    return std::make_unique<QtWebView>(delegate);
  }

private:
  bool hasStarted_ = false;
};

} // namespace

} // namespace wrenvale::platform

extern "C" WRENVALE_EXPORT wrenvale::platform::WebViewModule* wrenvale_webview_module();

extern "C" wrenvale::platform::WebViewModule* wrenvale_webview_module() {
  static auto& module = *new wrenvale::platform::Module;
  return &module;
}
