// Base32 (RFC 4648, section 6) without padding, such as licence keys are written in.

#ifndef WRENVALE_BASE32_H
#define WRENVALE_BASE32_H

#include <optional>
#include <string_view>

#include <wrenvale/Export.h>
#include <wrenvale/Value.h>

namespace wrenvale {

/// The decoded bytes. Upper and lower case count the same. Nothing for text that is not exactly the
/// encoding of some bytes: a character outside the alphabet (padding, white space and anything
/// beyond ASCII among them), a length that no bytes encode to, or left-over bits that are not zero.
/// Any thread.
WRENVALE_EXPORT std::optional<Data> dataWithBase32String(std::string_view text);

} // namespace wrenvale

#endif
