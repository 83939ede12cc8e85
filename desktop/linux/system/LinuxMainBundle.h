// The host's Info dictionary, read from a property list in memory.

#ifndef WRENVALE_DESKTOP_LINUX_SYSTEM_LINUXMAINBUNDLE_H
#define WRENVALE_DESKTOP_LINUX_SYSTEM_LINUXMAINBUNDLE_H

#include <mutex>

#include "platform/MainBundle.h"

namespace wrenvale::platform {

class LinuxMainBundle final : public MainBundle {
public:
  /// `infoPlist` lives as long as this. Bytes that are no property list with a dictionary on top
  /// count as a host without an Info dictionary.
  explicit LinuxMainBundle(std::string_view infoPlist)
      : infoPlist_(infoPlist) {}

  /// The first call reads the property list.
  Value objectForInfoDictionaryKey(std::string_view key) const override;

private:
  const std::string_view infoPlist_;
  mutable std::once_flag read_;
  mutable Value info_;
};

} // namespace wrenvale::platform

#endif
