// Text from documents, as JSON and as a terminal may show it.

#ifndef WRENVALE_TOOLS_JSONTEXT_H
#define WRENVALE_TOOLS_JSONTEXT_H

#include <cstddef>
#include <string>
#include <string_view>

namespace wrenvale::kit {

/// The UTF-8 text as a JSON string, quotation marks included.
std::string jsonString(std::string_view text);

/// The UTF-8 text with every control character (C0, DEL, C1) as "\u" and four hexadecimal digits.
std::string readable(std::string_view text);

struct TextPlace {
  std::size_t line = 1;
  std::size_t column = 1; ///< in characters
};

/// Where the byte at `offset` of the UTF-8 text is, counted as an editor does.
TextPlace placeOf(std::string_view text, std::size_t offset);

} // namespace wrenvale::kit

#endif
