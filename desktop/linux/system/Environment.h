// Where the system parts look up environment variables, so that a test needs to change none.

#ifndef WRENVALE_DESKTOP_LINUX_SYSTEM_ENVIRONMENT_H
#define WRENVALE_DESKTOP_LINUX_SYSTEM_ENVIRONMENT_H

#include <functional>
#include <string_view>

namespace wrenvale::platform {

/// The value of the variable, null when it is not set. Like getenv(), whose limits hold too: a host
/// that changes its environment while other threads run breaks every reader.
using Environment = std::function<const char*(const char* name)>;

/// The value of the variable; empty when it is not set, since an empty one counts the same.
inline std::string_view variable(const Environment& environment, const char* name) {
  const char* value = environment(name);
  return value ? value : "";
}

} // namespace wrenvale::platform

#endif
