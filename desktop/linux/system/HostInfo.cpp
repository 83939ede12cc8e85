#include "desktop/linux/system/HostInfo.h"

#include <wrenvale/HostInfo.h>

// Weak, so that a program without an Info dictionary still loads the library.
extern "C" __attribute__((weak, visibility("default"))) const WrenvaleHostInfo wrenvale_host_info;

namespace wrenvale::platform {

std::string_view hostInfoPlist() {
  if (&wrenvale_host_info == nullptr) return {};
  return {reinterpret_cast<const char*>(wrenvale_host_info.infoPlist),
          *wrenvale_host_info.infoPlistSize};
}

} // namespace wrenvale::platform
