#include "desktop/linux/system/LinuxSystem.h"

#include <cerrno>
#include <cstdlib>

#include <sys/random.h>
#include <sys/utsname.h>
#include <unistd.h>

#include "desktop/linux/settings/Files.h"
#include "desktop/linux/system/Environment.h"

#if defined(__GLIBC__)
#define WRENVALE_HAS_ARC4RANDOM __GLIBC_PREREQ(2, 36)
#else
#define WRENVALE_HAS_ARC4RANDOM 0
#endif

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

LinuxSystem::LinuxSystem(std::string root)
    : root_(std::move(root)) {}

Date LinuxSystem::now() const {
  return std::chrono::floor<Date::duration>(std::chrono::system_clock::now());
}

std::uint32_t LinuxSystem::arc4random() {
#if WRENVALE_HAS_ARC4RANDOM
  return ::arc4random();
#else
  std::uint32_t number = 0;
  while (::getrandom(&number, sizeof number, 0) < 0 && errno == EINTR) {
  }
  return number;
#endif
}

bool LinuxSystem::removeItemAtPath(std::string_view path) {
  return ::unlink(std::string(path).c_str()) == 0;
}

std::optional<std::string> LinuxSystem::sysctlbyname(std::string_view name) const {
  if (name == "hw.model") return model();
  if (name == "kern.osrelease") return release();
  return std::nullopt;
}

std::optional<std::string> LinuxSystem::model() const {
  for (const char* file : kModelFiles) {
    const auto content = beginningOfFile((root_ + file).c_str(), kLongestModel);
    if (!content) continue;
    if (const auto text = trimmed(*content); !text.empty()) return std::string(text);
  }
  return std::nullopt;
}

} // namespace wrenvale::platform
