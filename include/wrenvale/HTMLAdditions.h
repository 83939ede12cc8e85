// Percent-encoding (RFC 3986) of text for addresses and header fields.

#ifndef WRENVALE_HTMLADDITIONS_H
#define WRENVALE_HTMLADDITIONS_H

#include <concepts>
#include <optional>
#include <string>
#include <string_view>

#include <wrenvale/Export.h>

namespace wrenvale {

/// Writes every ASCII letter, digit, "-", ".", "_" and "~" of the UTF-8 text as it is and every
/// other byte as "%" and two upper-case hexadecimal digits: "a b,c" gives "a%20b%2Cc". Any thread.
WRENVALE_EXPORT std::string urlEncoded(std::string_view text);

/// The same for text that may be missing; nothing gives nothing.
template <std::same_as<std::optional<std::string>> Text>
Text urlEncoded(const Text& text) {
  return text ? Text(urlEncoded(std::string_view(*text))) : Text();
}

} // namespace wrenvale

#endif
