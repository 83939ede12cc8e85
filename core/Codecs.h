// Base64 (RFC 4648, section 4).

#ifndef WRENVALE_CORE_CODECS_H
#define WRENVALE_CORE_CODECS_H

#include <string>
#include <string_view>

namespace wrenvale {

/// The bytes as base64 with padding and without line breaks.
std::string base64Encoded(std::string_view bytes);

} // namespace wrenvale

#endif
