// What the firmware, the kernel and the C library say and do.

#ifndef WRENVALE_DESKTOP_LINUX_SYSTEM_LINUXSYSTEM_H
#define WRENVALE_DESKTOP_LINUX_SYSTEM_LINUXSYSTEM_H

#include "platform/System.h"

namespace wrenvale::platform {

class LinuxSystem final : public System {
public:
  /// `root` is put before the path of every file of the kernel; empty for the running system.
  explicit LinuxSystem(std::string root = {});

  Date now() const override;
  std::uint32_t arc4random() override;

  /// "hw.model" is the product name that the firmware states, without white space around it; of an
  /// absurdly long one the first 256 bytes count. A machine whose firmware states none, as many
  /// virtual ones, has no model.
  std::optional<std::string> sysctlbyname(std::string_view name) const override;

  /// Removes plain files and links, never a folder.
  bool removeItemAtPath(std::string_view path) override;

private:
  std::optional<std::string> model() const;

  const std::string root_;
};

} // namespace wrenvale::platform

#endif
