// What the firmware and the kernel say about the machine.

#ifndef WRENVALE_DESKTOP_LINUX_SYSTEM_LINUXKERNEL_H
#define WRENVALE_DESKTOP_LINUX_SYSTEM_LINUXKERNEL_H

#include "platform/Kernel.h"

namespace wrenvale::platform {

class LinuxKernel final : public Kernel {
public:
  /// `root` is put before the path of every file of the kernel; empty for the running system.
  explicit LinuxKernel(std::string root = {});

  /// "hw.model" is the product name that the firmware states, without white space around it; of an
  /// absurdly long one the first 256 bytes count. A machine whose firmware states none, as many
  /// virtual ones, has no model.
  std::optional<std::string> sysctlbyname(std::string_view name) const override;

  /// Infinity: every system that the library runs on is recent enough.
  double appKitVersionNumber() const override;

private:
  std::optional<std::string> model() const;

  const std::string root_;
};

} // namespace wrenvale::platform

#endif
