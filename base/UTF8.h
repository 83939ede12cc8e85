// Characters as UTF-8 (RFC 3629).

#ifndef WRENVALE_BASE_UTF8_H
#define WRENVALE_BASE_UTF8_H

#include <optional>
#include <string>
#include <string_view>

namespace wrenvale {

constexpr bool isSurrogate(char32_t c) {
  return c >= 0xD800 && c <= 0xDFFF;
}

/// Takes one character off the front of a text that is not empty. Where the text is not
/// well-formed: nothing, and one byte is taken.
std::optional<char32_t> takeUTF8(std::string_view& text);

/// `character` is a Unicode scalar value.
void appendUTF8(std::string& out, char32_t character);

} // namespace wrenvale

#endif
