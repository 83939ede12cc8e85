// The host's identity, read from its Info dictionary and the user's locale.

#ifndef WRENVALE_CORE_IDENTITY_H
#define WRENVALE_CORE_IDENTITY_H

#include <cstdint>
#include <optional>
#include <string>

#include "base/Value.h"

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

} // namespace wrenvale

#endif
