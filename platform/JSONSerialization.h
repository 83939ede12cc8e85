// Reading JSON documents (RFC 8259).

#ifndef WRENVALE_PLATFORM_JSONSERIALIZATION_H
#define WRENVALE_PLATFORM_JSONSERIALIZATION_H

#include <cstddef>
#include <optional>
#include <string>

#include "base/Value.h"

namespace wrenvale::platform {

struct JSONResult {
  std::optional<Value> object; ///< an array or a dictionary; nothing when the text is no document
  std::string error;           ///< what is wrong, for people
  std::size_t errorOffset = 0; ///< where in the text it is wrong, in bytes
};

/// Any thread. Takes text of any origin: the whole text is checked before anything is returned, and
/// nesting is bounded.
class JSONSerialization {
public:
  virtual ~JSONSerialization() = default;

  /// A whole number within 64 bits becomes an integer, any other number a real. Of a key that
  /// stands twice in one dictionary the last value counts.
  virtual JSONResult JSONObjectWithData(std::string data) = 0;
};

} // namespace wrenvale::platform

#endif
