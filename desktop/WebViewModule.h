// What the web view module offers. The module is a library of its own, loaded when the first page
// is to be shown, so that a host that never does so pays for no web engine.

#ifndef WRENVALE_DESKTOP_WEBVIEWMODULE_H
#define WRENVALE_DESKTOP_WEBVIEWMODULE_H

#include <memory>

#include "platform/WebView.h"

class QWidget;

namespace wrenvale::platform {

class WebViewDelegate;
struct PageRequest;

struct LoadedWebView {
  std::unique_ptr<WebView> view;
  /// What shows it, hidden at first. Whoever gives it a parent hands over its ownership with that;
  /// destroying it harms nothing.
  QWidget* widget = nullptr;
};

/// Lives until the process ends; the module is never unloaded.
class WebViewModule {
public:
  virtual ~WebViewModule() = default;

  /// Loads a page into a view of its own, past every cache; the delegate is told later. Starts the
  /// engine on the first call. Null where it cannot start, which is found out without starting it.
  /// Main thread only; there is a QApplication.
  virtual LoadedWebView makeWebView(WebViewDelegate& delegate, const PageRequest& request) = 0;
};

/// The module's one entry, named kWebViewModuleEntry; never null.
using WebViewModuleEntry = WebViewModule* (*)();
inline constexpr const char* kWebViewModuleEntry = "wrenvale_webview_module";
/// Where the module is, relative to the folder of the library.
inline constexpr const char* kWebViewModuleFile = "wrenvale/libwrenvale-webview.so";

} // namespace wrenvale::platform

#endif
