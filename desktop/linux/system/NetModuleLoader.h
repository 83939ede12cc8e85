// Downloads, encryption and JSON from the net module, which is loaded by the first call of any of
// them and never unloaded.
//
// Without the module (not installed, damaged, of another version) everything fails as it would
// without a network: no answer, no key, no document. It is looked for once.

#ifndef WRENVALE_DESKTOP_LINUX_SYSTEM_NETMODULELOADER_H
#define WRENVALE_DESKTOP_LINUX_SYSTEM_NETMODULELOADER_H

#include <atomic>
#include <mutex>
#include <string>

#include "desktop/Modules.h"
#include "platform/Net.h"

namespace wrenvale::platform {

class NetModuleLoader final : public URLLoading, public Encryption, public JSONSerialization {
public:
  /// `path` of the module; an empty one is a missing module.
  explicit NetModuleLoader(std::string path)
      : path_(std::move(path)) {}

  std::optional<std::string> sendSynchronousRequest(const URLRequest& request) override;
  ImportedKey importPublicKey(std::string_view pem) override;
  std::optional<Value> JSONObjectWithData(std::string data) override;

  /// Requests under way return nothing as soon as they can, later ones at once. Loads nothing:
  /// without the module no request is under way, and later ones do not load it.
  void cancelAllRequests();

private:
  const NetModule* module();

  const std::string path_;
  std::once_flag loaded_;
  std::atomic<const NetModule*> module_ = nullptr;
  std::atomic<bool> cancelled_ = false;
};

} // namespace wrenvale::platform

#endif
