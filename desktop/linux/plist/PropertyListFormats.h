// The two forms of property lists, and what bounds the reading of either.

#ifndef WRENVALE_DESKTOP_LINUX_PLIST_PROPERTYLISTFORMATS_H
#define WRENVALE_DESKTOP_LINUX_PLIST_PROPERTYLISTFORMATS_H

#include <optional>
#include <string>
#include <string_view>

#include "base/Value.h"
#include "desktop/linux/plist/PropertyList.h"

namespace wrenvale::platform {

constexpr std::string_view kBinaryPropertyListMagic = "bplist00";

/// What valueFromPropertyList() promises, whatever the size of `bytes`.
std::optional<Value> valueFromBinaryPropertyList(std::string_view bytes);

/// Equal strings are held once. `value` is one that isPropertyListValue() accepts.
std::string binaryPropertyListFromValue(const Value& value);

/// What valueFromPropertyList() promises, whatever the size of `xml`. Attributes are passed over; a
/// document type with declarations of its own, or an element no property list has, is malformed.
std::optional<Value> valueFromXMLPropertyList(std::string_view xml);

class PropertyListBudget {
public:
  /// Takes off one value or key with so many bytes of text or data; false once too much was spent.
  bool spend(std::size_t bytes) {
    if (nodes_ == 0 || bytes > bytes_) return false;
    --nodes_;
    bytes_ -= bytes;
    return true;
  }

private:
  std::size_t nodes_ = kMaxPropertyListNodes;
  std::size_t bytes_ = kMaxPropertyListSize;
};

} // namespace wrenvale::platform

#endif
