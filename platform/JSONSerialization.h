// Reading JSON documents (RFC 8259).

#ifndef WRENVALE_PLATFORM_JSONSERIALIZATION_H
#define WRENVALE_PLATFORM_JSONSERIALIZATION_H

#include <optional>
#include <string>

#include "base/Value.h"

namespace wrenvale::platform {

/// Any thread. Takes text of any origin: the whole text is checked before anything is returned, and
/// nesting is bounded.
class JSONSerialization {
public:
  virtual ~JSONSerialization() = default;

  /// The document, an array or a dictionary; nothing when the text is none. A whole number becomes
  /// an integer, or beyond the signed ones a real; one beyond 64 bits makes the text no document.
  /// Of a key that stands twice in one dictionary the last value counts.
  virtual std::optional<Value> JSONObjectWithData(std::string data) = 0;
};

} // namespace wrenvale::platform

#endif
