// Who the host is, by its Info dictionary and the user's locale, and how requests name it.

#ifndef WRENVALE_CORE_IDENTITY_H
#define WRENVALE_CORE_IDENTITY_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/Value.h"
#include "platform/Application.h"

namespace wrenvale {

namespace platform {
class Application;
class Locale;
} // namespace platform

namespace info {
inline constexpr std::string_view kIdentifier = "CFBundleIdentifier";
inline constexpr std::string_view kVersion = "CFBundleVersion";
inline constexpr std::string_view kName = "CFBundleName";
inline constexpr std::string_view kAppstoreID = "Appstore ID";
} // namespace info

/// The value under `key` in the host's Info dictionary, of whatever type the host gave it; null
/// when there is none.
Value infoValue(const Value::Dictionary& info, std::string_view key);

/// "CFBundleName" as the host translates it, else as it stands; nothing when it is no text.
std::optional<std::string> localizedName(const Value::Dictionary& info,
                                         const platform::Application& application);

/// A store identifier as text: a number's decimal digits, a string as it stands.
std::optional<std::string> appstoreIDFromInfo(const Value& value);

/// Country and language as the vendor's file names carry them, such as "US_en" or "CH_fr-CH". Each
/// half is "EN" when the locale lacks it.
std::string localeSuffix(const platform::Locale& locale);

/// The locale's country as the newsletter page's name carries it; "EN" when it has none.
std::string countryOrFallback(const platform::Locale& locale);

/// The host's translation of a text of the framework's; the text, which is English, without one.
inline std::string localizedText(const platform::Application& application, std::string_view text) {
  return application.localizedString(text, "Wrenvale").value_or(std::string(text));
}

} // namespace wrenvale

namespace wrenvale {

namespace platform {
class System;
}

struct HostIdentity {
  std::string appName;
  std::int64_t bundleVersion = 0;
  std::optional<std::string> appstoreID;
};

/// "<name>/<build> <store identifier>", name and identifier percent-encoded: what the welcome
/// window's web view adds to its own user agent, and how the framework's downloads begin theirs.
std::string applicationNameForUserAgent(const HostIdentity& host);

/// The user agent of the framework's own downloads. Nothing on a system that does not tell its
/// kernel's release.
std::optional<std::string> userAgentFor(const HostIdentity& host,
                                        const std::optional<std::string>& machineModel,
                                        const platform::System& system);

} // namespace wrenvale

#endif
