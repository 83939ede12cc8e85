// What the machine and its system say about themselves.

#ifndef WRENVALE_PLATFORM_KERNEL_H
#define WRENVALE_PLATFORM_KERNEL_H

#include <optional>
#include <string>
#include <string_view>

namespace wrenvale::platform {

/// Any thread.
class Kernel {
public:
  virtual ~Kernel() = default;

  /// "hw.model" (the model of the machine) or "kern.osrelease" (the kernel's release, such as
  /// "6.1.0-18-amd64"); nothing when the system does not tell or the name is another.
  virtual std::optional<std::string> sysctlbyname(std::string_view name) const = 0;

  /// The version of the system's application framework; a custom user agent needs 1343.0 or later.
  /// A system without such a number answers infinity.
  virtual double appKitVersionNumber() const = 0;
};

} // namespace wrenvale::platform

#endif
