// How the framework reads values that others wrote: documents from the server, the host's Info
// dictionary, the user defaults. Every lenient reading is here, so that "12" is 12 everywhere.

#ifndef WRENVALE_BASE_VALUE_H
#define WRENVALE_BASE_VALUE_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <wrenvale/Value.h>

namespace wrenvale {

/// The integer that a value stands for: an integer itself, the whole part of a real (held within
/// 64 bits; not-a-number is 0), 1 and 0 for true and false, the leading decimal digits of a string
/// after optional white space and sign (held within 64 bits). Anything else is 0.
std::int64_t integerValue(const Value& value);

/// Whether a value counts as true: a number that is not zero, true itself, a string that begins
/// with Y, y, T, t or a digit 1-9 after optional white space, sign and zeros.
bool truthValue(const Value& value);

/// The string, when the value is one.
std::optional<std::string> stringValue(const Value& value);

/// What a formatter prints for text that may be missing: the text, or "(null)".
std::string formatted(const std::optional<std::string>& text);

} // namespace wrenvale

#endif
