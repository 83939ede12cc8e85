// Property lists: the format of the defaults file and of a host's Info dictionary.
//
// Read in their binary and in their XML form, written in the binary one, which loses nothing:
// 64-bit integers, reals and dates to the microsecond come back as they were. The bytes may come
// from anywhere: whatever is in them, reading ends soon, with little memory, and never crashes. Any
// thread; only a lack of memory throws.

#ifndef WRENVALE_DESKTOP_LINUX_PLIST_PROPERTYLIST_H
#define WRENVALE_DESKTOP_LINUX_PLIST_PROPERTYLIST_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "base/Value.h"

namespace wrenvale::platform {

/// Bounds of what is read and written; beyond them a list counts as malformed. The text and data in
/// a list is counted as often as it occurs, though a file may hold it once.
constexpr std::size_t kMaxPropertyListSize =
    8 * 1024 * 1024;                                       // bytes of a file, and of its contents
constexpr std::size_t kMaxPropertyListNodes = 1024 * 1024; // values and keys
constexpr int kMaxPropertyListNesting = 128;               // arrays and dictionaries in each other

/// The value that a property list describes; nothing when it is malformed or beyond the bounds. An
/// integer of more than 64 bits reads as a real, an archiver's reference as an integer, and half a
/// surrogate pair as the replacement character.
std::optional<Value> valueFromPropertyList(std::string_view bytes);

/// The list in its binary form; nothing for a value that isPropertyListValue() refuses or whose
/// list would be too large. A string is kept as it is, be it UTF-8 or not, with zero bytes too.
std::optional<std::string> propertyListFromValue(const Value& value);

/// Whether a property list can hold the value, itself within `nesting` collections: it and what is
/// in it is not null, and it is within the bounds.
bool isPropertyListValue(const Value& value, int nesting = 0);

} // namespace wrenvale::platform

#endif
