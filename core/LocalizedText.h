// Texts for the user, in the host's translation.

#ifndef WRENVALE_CORE_LOCALIZEDTEXT_H
#define WRENVALE_CORE_LOCALIZEDTEXT_H

#include <string>
#include <string_view>

#include "platform/MainBundle.h"

namespace wrenvale {

/// The host's translation of a text of the framework's; the text, which is English, without one.
inline std::string localizedText(const platform::Localization& localization,
                                 std::string_view text) {
  return localization.localizedStringForKey(text, "Wrenvale");
}

} // namespace wrenvale

#endif
