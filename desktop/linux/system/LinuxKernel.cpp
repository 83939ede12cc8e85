#include "desktop/linux/system/LinuxKernel.h"

#include <limits>

#include <sys/utsname.h>

#include "desktop/linux/settings/SmallFile.h"
#include "desktop/linux/system/Text.h"

namespace wrenvale::platform {

namespace {

constexpr std::size_t kLongestModel = 256;

// Firmware on a PC, then a device tree, which ends its texts with a zero byte.
constexpr const char* kModelFiles[] = {"/sys/devices/virtual/dmi/id/product_name",
                                       "/proc/device-tree/model"};

std::optional<std::string> release() {
  utsname names;
  if (::uname(&names) != 0 || names.release[0] == '\0') return std::nullopt;
  return names.release;
}

} // namespace

LinuxKernel::LinuxKernel(std::string root)
    : root_(std::move(root)) {}

std::optional<std::string> LinuxKernel::sysctlbyname(std::string_view name) const {
  if (name == "hw.model") return model();
  if (name == "kern.osrelease") return release();
  return std::nullopt;
}

double LinuxKernel::appKitVersionNumber() const {
  return std::numeric_limits<double>::infinity();
}

std::optional<std::string> LinuxKernel::model() const {
  for (const char* file : kModelFiles) {
    const auto content = beginningOfFile((root_ + file).c_str(), kLongestModel);
    if (!content) continue;
    if (const auto text = trimmed(*content); !text.empty()) return std::string(text);
  }
  return std::nullopt;
}

} // namespace wrenvale::platform
