// Texts for the user, in the host's translation.

#ifndef WRENVALE_CORE_LOCALIZEDTEXT_H
#define WRENVALE_CORE_LOCALIZEDTEXT_H

#include <string>
#include <string_view>

#include "platform/Application.h"

namespace wrenvale {

/// The host's translation of a text of the framework's; the text, which is English, without one.
inline std::string localizedText(const platform::Application& application, std::string_view text) {
  return application.localizedString(text, "Wrenvale").value_or(std::string(text));
}

} // namespace wrenvale

#endif
