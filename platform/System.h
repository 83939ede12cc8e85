// What the machine, its system and the user's settings say, and what they do for the framework.

#ifndef WRENVALE_PLATFORM_SYSTEM_H
#define WRENVALE_PLATFORM_SYSTEM_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Value.h"

namespace wrenvale::platform {

/// Any thread.
class System {
public:
  virtual ~System() = default;

  /// The time of day.
  virtual Date now() const = 0;

  /// A uniformly distributed 32-bit number.
  virtual std::uint32_t arc4random() = 0;

  /// "hw.model" (the model of the machine) or "kern.osrelease" (the kernel's release, such as
  /// "6.1.0-18-amd64"); nothing when the system does not tell or the name is another.
  virtual std::optional<std::string> sysctlbyname(std::string_view name) const = 0;

  /// Removes the file at this path; false when there is none or it cannot be removed.
  virtual bool removeItemAtPath(std::string_view path) = 0;
};

/// The user's region and languages. Any thread. Each call reads the present settings.
class Locale {
public:
  virtual ~Locale() = default;

  /// ISO 3166 code such as "CH", as the settings write it; nothing when the locale has no country.
  virtual std::optional<std::string> countryCode() const = 0;

  /// BCP 47 tags such as "fr-CH", the most wanted first. The language of the locale when the user
  /// has named none; empty when that has no language either.
  virtual std::vector<std::string> preferredLanguages() const = 0;
};

/// The applications of the desktop. Any thread. Nothing is remembered: each call asks the system
/// anew.
class InstalledApplications {
public:
  virtual ~InstalledApplications() = default;

  /// Where the application with this bundle identifier is; nothing when it is not installed or the
  /// identifier is no plain name.
  virtual std::optional<std::string>
  URLForApplicationWithBundleIdentifier(std::string_view bundleIdentifier) const = 0;
};

} // namespace wrenvale::platform

#endif
