// The modules: libraries of their own, loaded when they are first needed, so that a host that never
// needs one pays for none of what is in it. Where they are, and what each offers.

#ifndef WRENVALE_DESKTOP_MODULES_H
#define WRENVALE_DESKTOP_MODULES_H

#include <memory>
#include <string>
#include <string_view>

#include "base/Log.h"
#include "platform/WebView.h"

class QWidget;

namespace wrenvale::platform {

class Encryption;
class JSONSerialization;
class URLLoading;
class WebViewDelegate;
struct PageRequest;

/// Where a module belongs: `file`, beside the library (or program) that holds this code, as an
/// absolute path. Empty when the system does not tell. Call it early: the path may depend on the
/// working directory at load time.
std::string modulePath(std::string_view file);

/// Loads the module, never to be unloaded, and answers its function of that name. Null when there
/// is no such module, it cannot be loaded, or it has no such function. An empty path is a missing
/// module. Any thread.
void* moduleEntry(const std::string& path, const char* function);

/// The parts live until the process ends; the module is never unloaded.
struct NetModule {
  URLLoading& urlLoading;
  Encryption& encryption;
  JSONSerialization& json;
  /// See below.
  void (*cancelAllRequests)();
};

/// The module's one entry, named kNetModuleEntry; never null. `sink` takes what the module logs.
/// Any thread but the main one.
using NetModuleEntry = const NetModule* (*)(log::Sink sink);
inline constexpr const char* kNetModuleEntry = "wrenvale_net_module";
/// Where the module is, relative to the folder of the library.
inline constexpr const char* kNetModuleFile = "wrenvale/libwrenvale-net.so";

/// The process is ending: downloads under way return nothing as soon as they can, later ones at
/// once. Loads nothing. Any thread.
void cancelAllRequests();

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

/// The module's one entry, named kWebViewModuleEntry; never null. `sink` takes what the module
/// logs.
using WebViewModuleEntry = WebViewModule* (*)(log::Sink sink);
inline constexpr const char* kWebViewModuleEntry = "wrenvale_webview_module";
/// Where the module is, relative to the folder of the library.
inline constexpr const char* kWebViewModuleFile = "wrenvale/libwrenvale-webview.so";

} // namespace wrenvale::platform

#endif
