// The UTF-16 (most significant byte first) of binary property lists.

#ifndef WRENVALE_DESKTOP_LINUX_PLIST_UTF16_H
#define WRENVALE_DESKTOP_LINUX_PLIST_UTF16_H

#include <optional>
#include <string>
#include <string_view>

namespace wrenvale::platform {

bool isASCII(std::string_view text);

/// Nothing when `text` is not well-formed UTF-8.
std::optional<std::string> utf16FromUTF8(std::string_view text);

/// Half a surrogate pair gives the replacement character. `bytes` has an even length.
std::string utf8FromUTF16(std::string_view bytes);

} // namespace wrenvale::platform

#endif
