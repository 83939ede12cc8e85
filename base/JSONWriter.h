// Values as JSON text.

#ifndef WRENVALE_BASE_JSONWRITER_H
#define WRENVALE_BASE_JSONWRITER_H

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Value.h"

namespace wrenvale {

/// Keys and values in the order in which they are written.
using JSONObject = std::vector<std::pair<std::string_view, Value>>;

/// A JSON array of the objects (RFC 8259), in order, spread over lines and indented. It is
/// UTF-8 whatever the strings hold: every byte of theirs that is not gives a replacement character.
/// A value that is neither a string nor an integer is written as null.
std::string prettyPrintedJSON(const std::vector<JSONObject>& objects);

} // namespace wrenvale

#endif
