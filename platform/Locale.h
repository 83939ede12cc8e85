// The user's region and languages.

#ifndef WRENVALE_PLATFORM_LOCALE_H
#define WRENVALE_PLATFORM_LOCALE_H

#include <optional>
#include <string>
#include <vector>

namespace wrenvale::platform {

/// Any thread. Each call reads the present settings.
class Locale {
public:
  virtual ~Locale() = default;

  /// ISO 3166 code such as "CH", as the settings write it; nothing when the locale has no country.
  virtual std::optional<std::string> countryCode() const = 0;

  /// ISO 639 code such as "fr"; nothing when the locale has no language.
  virtual std::optional<std::string> languageCode() const = 0;

  /// BCP 47 tags such as "fr-CH", the most wanted first; may be empty.
  virtual std::vector<std::string> preferredLanguages() const = 0;
};

} // namespace wrenvale::platform

#endif
