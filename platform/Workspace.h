// The desktop around the host: other applications, and opening addresses in them.

#ifndef WRENVALE_PLATFORM_WORKSPACE_H
#define WRENVALE_PLATFORM_WORKSPACE_H

#include <optional>
#include <string>
#include <string_view>

namespace wrenvale::platform {

/// Any thread. Nothing is remembered: each call asks the system anew.
class InstalledApplications {
public:
  virtual ~InstalledApplications() = default;

  /// Where the application with this bundle identifier is; nothing when it is not installed or the
  /// identifier is no plain name.
  virtual std::optional<std::string>
  URLForApplicationWithBundleIdentifier(std::string_view bundleIdentifier) const = 0;
};

/// Main thread only.
class Workspace {
public:
  virtual ~Workspace() = default;

  /// Opens an address in the application that handles its scheme. False when it is no address, its
  /// scheme would run or read something local, nothing handles it, or addresses are being opened
  /// faster than a person would; nothing is opened then.
  virtual bool openURL(std::string_view url) = 0;
};

} // namespace wrenvale::platform

#endif
