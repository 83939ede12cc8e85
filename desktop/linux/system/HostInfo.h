// What wrenvale_host() compiled into the executable.

#ifndef WRENVALE_DESKTOP_LINUX_SYSTEM_HOSTINFO_H
#define WRENVALE_DESKTOP_LINUX_SYSTEM_HOSTINFO_H

#include <string_view>

namespace wrenvale::platform {

/// The bytes of the host's Info dictionary, a property list; empty when the host has none. They are
/// constant data of the executable: there before its first constructor runs and for as long as the
/// process lives. Any thread.
std::string_view hostInfoPlist();

} // namespace wrenvale::platform

#endif
