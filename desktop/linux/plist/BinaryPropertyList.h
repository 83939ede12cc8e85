// The binary form of a property list: objects, a table of their offsets, a trailer.

#ifndef WRENVALE_DESKTOP_LINUX_PLIST_BINARYPROPERTYLIST_H
#define WRENVALE_DESKTOP_LINUX_PLIST_BINARYPROPERTYLIST_H

#include <optional>
#include <string>
#include <string_view>

#include "base/Value.h"

namespace wrenvale::platform {

constexpr std::string_view kBinaryPropertyListMagic = "bplist00";

/// What valueFromPropertyList() promises, whatever the size of `bytes`.
std::optional<Value> valueFromBinaryPropertyList(std::string_view bytes);

/// Equal strings are held once. `value` is one that isPropertyListValue() accepts.
std::string binaryPropertyListFromValue(const Value& value);

} // namespace wrenvale::platform

#endif
