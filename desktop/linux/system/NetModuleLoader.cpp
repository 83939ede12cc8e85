#include "desktop/linux/system/NetModuleLoader.h"

#include "base/Log.h"
#include "desktop/Modules.h"

namespace wrenvale::platform {

namespace {

const NetModule* loadModule(const std::string& path) {
  const auto entry = reinterpret_cast<NetModuleEntry>(moduleEntry(path, kNetModuleEntry));
  return entry ? entry(log::sink) : nullptr;
}

} // namespace

const NetModule* NetModuleLoader::module() {
  std::call_once(loaded_, [this] { module_ = loadModule(path_); });
  return module_;
}

// Checks the flag again after loading: a cancelling thread either finds the module and cancels
// there, or has set the flag before the module could be found.
std::optional<std::string> NetModuleLoader::sendSynchronousRequest(const URLRequest& request) {
  if (cancelled_) return std::nullopt;
  const auto* net = module();
  if (!net || cancelled_) return std::nullopt;
  return net->urlLoading.sendSynchronousRequest(request);
}

void NetModuleLoader::cancelAllRequests() {
  cancelled_ = true;
  if (const auto* net = module_.load()) net->cancelAllRequests();
}

ImportedKey NetModuleLoader::importPublicKey(std::string_view pem) {
  const auto* net = module();
  return net ? net->encryption.importPublicKey(pem) : ImportedKey();
}

std::optional<Value> NetModuleLoader::JSONObjectWithData(std::string data) {
  if (const auto* net = module()) return net->json.JSONObjectWithData(std::move(data));
  return std::nullopt;
}

} // namespace wrenvale::platform
