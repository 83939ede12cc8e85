#include "desktop/linux/system/LinuxMainBundle.h"

#include "desktop/linux/plist/PropertyList.h"

namespace wrenvale::platform {

Value LinuxMainBundle::objectForInfoDictionaryKey(std::string_view key) const {
  std::call_once(read_, [this] {
    if (auto info = valueFromPropertyList(infoPlist_)) info_ = *std::move(info);
  });
  return info_.find(key);
}

} // namespace wrenvale::platform
