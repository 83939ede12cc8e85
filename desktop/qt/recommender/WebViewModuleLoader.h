// The web view module, loaded when the first page is to be shown.

#ifndef WRENVALE_DESKTOP_QT_RECOMMENDER_WEBVIEWMODULELOADER_H
#define WRENVALE_DESKTOP_QT_RECOMMENDER_WEBVIEWMODULELOADER_H

#include <string>

#include "desktop/Modules.h"

namespace wrenvale::platform {

/// Main thread only.
class WebViewModuleLoader {
public:
  /// `path` of the module; an empty one is a missing module.
  explicit WebViewModuleLoader(std::string path)
      : path_(std::move(path)) {}

  /// Loads the module on the first call, for which there is a QApplication. That takes a moment,
  /// which no other thread can be given: a process that exits while it loads libraries destroys
  /// what they are just making. Null without a module (not installed, damaged, of another version).
  /// It is looked for once.
  WebViewModule* module();

private:
  const std::string path_;
  bool wasLookedFor_ = false;
  WebViewModule* module_ = nullptr;
};

} // namespace wrenvale::platform

#endif
