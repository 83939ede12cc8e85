#include "desktop/linux/plist/PropertyList.h"

#include "desktop/linux/plist/PropertyListFormats.h"

namespace wrenvale::platform {

namespace {

bool affordable(const Value& value, PropertyListBudget& budget, int nesting) {
  const auto* string = value.string();
  const auto* data = value.data();
  if (value.isNull() || !budget.spend(string ? string->size() : data ? data->size() : 0))
    return false;
  const bool isCollection = value.isArray() || value.isDictionary();
  if (isCollection && nesting >= kMaxPropertyListNesting) return false;
  for (std::size_t i = 0; i < value.size(); ++i) {
    if (value.isDictionary() && !budget.spend(value.keyAt(i).size())) return false;
    const auto text = value.stringAt(i);
    if (text ? !budget.spend(text->size()) : !affordable(value.at(i), budget, nesting + 1))
      return false;
  }
  return true;
}

} // namespace

bool isPropertyListValue(const Value& value, int nesting) {
  PropertyListBudget budget;
  return affordable(value, budget, nesting);
}

std::optional<Value> valueFromPropertyList(std::string_view bytes) {
  if (bytes.size() > kMaxPropertyListSize) return std::nullopt;
  if (bytes.starts_with(kBinaryPropertyListMagic)) return valueFromBinaryPropertyList(bytes);
  return valueFromXMLPropertyList(bytes);
}

std::optional<std::string> propertyListFromValue(const Value& value) {
  if (!isPropertyListValue(value)) return std::nullopt;
  auto bytes = binaryPropertyListFromValue(value);
  if (bytes.size() > kMaxPropertyListSize) return std::nullopt;
  return bytes;
}

} // namespace wrenvale::platform
