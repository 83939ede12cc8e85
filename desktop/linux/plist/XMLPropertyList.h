// The XML form of a property list, read only.

#ifndef WRENVALE_DESKTOP_LINUX_PLIST_XMLPROPERTYLIST_H
#define WRENVALE_DESKTOP_LINUX_PLIST_XMLPROPERTYLIST_H

#include <optional>
#include <string_view>

#include "base/Value.h"

namespace wrenvale::platform {

/// What valueFromPropertyList() promises, whatever the size of `xml`. Attributes are passed over; a
/// document type with declarations of its own, or an element no property list has, is malformed.
std::optional<Value> valueFromXMLPropertyList(std::string_view xml);

} // namespace wrenvale::platform

#endif
