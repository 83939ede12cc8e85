// White space at the ends of identifiers that people typed.

#ifndef WRENVALE_RECOMMEND_WHITESPACE_H
#define WRENVALE_RECOMMEND_WHITESPACE_H

#include <string_view>

namespace wrenvale::recommend {

/// The UTF-8 text without white space and line breaks at either end: the 25 code points with
/// Unicode's White_Space property, which are the space, line and paragraph separators (general
/// category Z), U+0009 to U+000D and U+0085. Zero-width characters are none of them.
std::string_view trimmed(std::string_view text);

} // namespace wrenvale::recommend

#endif
