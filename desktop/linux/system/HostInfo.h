// The host's description of itself, which wrenvale_host() compiled into the executable.

#ifndef WRENVALE_DESKTOP_LINUX_SYSTEM_HOSTINFO_H
#define WRENVALE_DESKTOP_LINUX_SYSTEM_HOSTINFO_H

#include <string_view>

#include "base/Value.h"

namespace wrenvale::platform {

/// The host's Info dictionary; empty when it has none. Its bytes are constant data of the
/// executable: there before its first constructor runs. Any thread.
Value::Dictionary hostInfo();

/// Read from a property list; empty when the bytes are none with a dictionary on top.
Value::Dictionary infoFromPropertyList(std::string_view bytes);

} // namespace wrenvale::platform

#endif
