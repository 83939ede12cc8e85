// UTF-8 (RFC 3629).

#ifndef WRENVALE_DESKTOP_NET_JSON_UTF8_H
#define WRENVALE_DESKTOP_NET_JSON_UTF8_H

#include <cstddef>
#include <string_view>

namespace wrenvale::platform {

/// How many bytes the character at the beginning of `text` takes; 0 when no character begins there.
std::size_t utf8SequenceLength(std::string_view text);

} // namespace wrenvale::platform

#endif
