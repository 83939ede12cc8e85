#include "desktop/linux/system/HostInfo.h"

#include <wrenvale/HostInfo.h>

#include "desktop/linux/plist/PropertyList.h"

// Weak, so that a program without an Info dictionary still loads the library.
extern "C" __attribute__((weak, visibility("default"))) const WrenvaleHostInfo wrenvale_host_info;

namespace wrenvale::platform {

Value::Dictionary infoFromPropertyList(std::string_view bytes) {
  const auto info = valueFromPropertyList(bytes);
  return info && info->isDictionary() ? info->mutableDictionary() : Value::Dictionary();
}

Value::Dictionary hostInfo() {
  if (&wrenvale_host_info == nullptr) return {};
  return infoFromPropertyList({reinterpret_cast<const char*>(wrenvale_host_info.infoPlist),
                               *wrenvale_host_info.infoPlistSize});
}

} // namespace wrenvale::platform
