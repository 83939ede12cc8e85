#include "desktop/Modules.h"

#include <filesystem>

#include <dlfcn.h>

#include "base/Log.h"

namespace wrenvale::platform {

std::string modulePath(std::string_view file) {
  Dl_info found;
  if (::dladdr(reinterpret_cast<const void*>(&modulePath), &found) == 0 || !found.dli_fname)
    return {};
  std::error_code error;
  const auto library = std::filesystem::absolute(found.dli_fname, error);
  return error ? std::string() : (library.parent_path() / file).string();
}

void* moduleEntry(const std::string& path, const char* function) {
  // An empty name would mean the program itself.
  if (path.empty()) return nullptr;
  void* library = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
  if (library) return ::dlsym(library, function);
  log::say("modules", [] { return std::string("not loaded: ") + ::dlerror(); });
  return nullptr;
}

} // namespace wrenvale::platform
