// Region and languages from the variables that a desktop session sets.
//
// LC_ALL, LC_MESSAGES and LANG name the locale; the first that is not empty counts. LANGUAGE lists
// the wanted languages, separated by colons. Codeset and modifier ("de_DE.UTF-8@euro") are dropped.
// What these texts say ends up in addresses, so a name that is not made of language, script, region
// and the like (parts of at most eight ASCII letters and digits between "_" or "-", the language of
// two letters or more) counts as not there.

#ifndef WRENVALE_DESKTOP_LINUX_SYSTEM_ENVIRONMENTLOCALE_H
#define WRENVALE_DESKTOP_LINUX_SYSTEM_ENVIRONMENTLOCALE_H

#include <cstdlib>

#include "desktop/linux/system/Environment.h"
#include "platform/System.h"

namespace wrenvale::platform {

class EnvironmentLocale final : public Locale {
public:
  explicit EnvironmentLocale(Environment environment = &::getenv);

  /// The first part after the language that looks like a region: two letters or three digits.
  std::optional<std::string> countryCode() const override;

  /// The entries of LANGUAGE as tags ("fr_CH" gives "fr-CH"), each once. When it has none, the
  /// language of the locale without its region; the locales "C" and "POSIX" have none.
  std::vector<std::string> preferredLanguages() const override;

private:
  const Environment environment_;
};

} // namespace wrenvale::platform

#endif
