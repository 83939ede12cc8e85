// The web view module, loaded when the first page is to be shown.

#ifndef WRENVALE_PLATFORM_QT_WEBVIEWMODULELOADER_H
#define WRENVALE_PLATFORM_QT_WEBVIEWMODULELOADER_H

#include <functional>
#include <future>
#include <memory>
#include <string>
#include <vector>

#include "platform/WebViewModule.h"
#include "platform/qt/BackgroundThreads.h"

class QObject;

namespace wrenvale::platform {

/// Main thread only.
class WebViewModuleLoader {
public:
  using Handler = std::function<void(WebViewModule*)>;

  /// `path` of the module; an empty one is a missing module.
  WebViewModuleLoader(std::string path, BackgroundThreads& threads);
  /// Waits for a load under way, whose handlers are not called any more.
  ~WebViewModuleLoader();

  /// Calls `handler` in a later turn, with the module or, when there is none (not installed,
  /// damaged, of another version), with null. The first call, for which there is a QApplication,
  /// has it loaded in the background: the engine is a hundred libraries, which a cold disk takes a
  /// second for. A process that ends meanwhile waits for that, as it could not unload what is half
  /// loaded.
  void load(Handler handler);

private:
  void begin();
  void tellLater();
  void tell();

  const std::string path_;
  BackgroundThreads& threads_;
  std::shared_future<WebViewModuleEntry> entry_; // valid from the first call on
  std::unique_ptr<QObject> receiver_;
  std::vector<Handler> waiting_;
};

} // namespace wrenvale::platform

#endif
