#include "platform/linux/NetModuleLoader.h"

#include <filesystem>

#include <dlfcn.h>

namespace wrenvale::platform {

namespace {

const NetModule* loadModule(const std::string& path) {
  // An empty name would mean the program itself.
  if (path.empty()) return nullptr;
  void* library = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
  if (!library) return nullptr;
  const auto entry = reinterpret_cast<NetModuleEntry>(::dlsym(library, kNetModuleEntry));
  return entry ? entry() : nullptr;
}

} // namespace

std::string netModulePath() {
  Dl_info found;
  if (::dladdr(reinterpret_cast<const void*>(&netModulePath), &found) == 0 || !found.dli_fname)
    return {};
  std::error_code error;
  const auto library = std::filesystem::absolute(found.dli_fname, error);
  return error ? std::string() : (library.parent_path() / kNetModuleFile).string();
}

const NetModule* NetModuleLoader::module() {
  std::call_once(loaded_, [this] { module_ = loadModule(path_); });
  return module_;
}

// The flag is looked at after loading: whoever cancels either finds the module and cancels there,
// or has set the flag before it could be found.
std::optional<std::string> NetModuleLoader::sendSynchronousRequest(const URLRequest& request) {
  if (cancelled_) return std::nullopt;
  const auto* net = module();
  if (!net || cancelled_) return std::nullopt;
  return net->urlLoading.sendSynchronousRequest(request);
}

void NetModuleLoader::cancelAllRequests() {
  cancelled_ = true;
  if (const auto* net = module_.load()) net->urlLoading.cancelAllRequests();
}

ImportedKey NetModuleLoader::importPublicKey(std::string_view pem) {
  const auto* net = module();
  return net ? net->encryption.importPublicKey(pem) : ImportedKey();
}

JSONResult NetModuleLoader::JSONObjectWithData(std::string data) {
  if (const auto* net = module()) return net->json.JSONObjectWithData(std::move(data));
  return {.object = std::nullopt, .error = "the net module is not installed"};
}

} // namespace wrenvale::platform
