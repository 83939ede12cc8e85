// A JSON text as a value, or where it is none.

#ifndef WRENVALE_TOOLS_WRENVALE_JSON_JSONDOCUMENT_H
#define WRENVALE_TOOLS_WRENVALE_JSON_JSONDOCUMENT_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "base/Value.h"

namespace wrenvale::kit {

struct JSONDocument {
  std::optional<Value> value;  ///< nothing when a host would refuse the text
  std::string error;           ///< what is wrong, for people
  std::size_t errorOffset = 0; ///< where the reading stopped, in bytes
};

JSONDocument readJSON(std::string_view text);

} // namespace wrenvale::kit

#endif
