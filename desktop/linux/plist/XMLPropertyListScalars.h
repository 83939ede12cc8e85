// What stands in the elements of an XML property list that have no children.

#ifndef WRENVALE_DESKTOP_LINUX_PLIST_XMLPROPERTYLISTSCALARS_H
#define WRENVALE_DESKTOP_LINUX_PLIST_XMLPROPERTYLISTSCALARS_H

#include <optional>
#include <string>
#include <string_view>

#include "base/Value.h"

namespace wrenvale::platform {

/// The value of an element of this name; nothing when there is no such element or its content is
/// not of its kind. Does not heed the process's locale.
std::optional<Value> scalarFromXML(std::string_view name, std::string_view content);

/// Appends the text with its character references replaced; false when one is malformed.
bool appendUnescaped(std::string& out, std::string_view text);

} // namespace wrenvale::platform

#endif
