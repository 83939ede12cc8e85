// The host application's own description of itself.

#ifndef WRENVALE_PLATFORM_MAINBUNDLE_H
#define WRENVALE_PLATFORM_MAINBUNDLE_H

#include <optional>
#include <string>
#include <string_view>

#include "base/Value.h"

namespace wrenvale::platform {

/// The Info dictionary: constant for the life of the process, readable before `main`, from any
/// thread.
class MainBundle {
public:
  virtual ~MainBundle() = default;

  /// The value under `key`, of whatever type the host gave it; null when there is none or the host
  /// has no Info dictionary at all.
  virtual Value objectForInfoDictionaryKey(std::string_view key) const = 0;
};

/// The host's translations. Any thread; a host may install translators at any time.
class Localization {
public:
  virtual ~Localization() = default;

  /// The translation of an Info value (such as "CFBundleName"); nothing when the host has none.
  virtual std::optional<std::string> localizedInfoString(std::string_view key) const = 0;

  /// The host's translation of `key` in `table`; the key itself when there is none.
  virtual std::string localizedStringForKey(std::string_view key, std::string_view table) const = 0;
};

} // namespace wrenvale::platform

#endif
