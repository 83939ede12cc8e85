// Text from documents, as JSON and as a terminal may show it.

#ifndef WRENVALE_TOOLS_WRENVALE_JSON_JSONTEXT_H
#define WRENVALE_TOOLS_WRENVALE_JSON_JSONTEXT_H

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

/// Where bytes of a UTF-8 text are, counted as an editor does. Goes over the text once, so it is
/// asked in ascending order.
class TextPlaces {
public:
  explicit TextPlaces(std::string_view text)
      : text_(text) {}

  /// `offset` is that of the last call at least; beyond the text it is the text's end.
  TextPlace placeOf(std::size_t offset);

private:
  std::string_view text_;
  std::size_t position_ = 0;
  TextPlace place_;
};

} // namespace wrenvale::kit

#endif
