#include "desktop/linux/plist/PropertyListFormats.h"

#include <bit>
#include <unordered_map>

#include "desktop/linux/plist/UTF16.h"

namespace wrenvale::platform {

namespace {

constexpr std::chrono::seconds kFrom1970To2001(978307200);

void appendBigEndian(std::string& out, std::uint64_t number, std::size_t size) {
  for (std::size_t shift = size * 8; shift > 0; shift -= 8)
    out += static_cast<char>((number >> (shift - 8)) & 0xFF);
}

// The fewest bytes out of `sizes` that hold the number.
std::size_t sizeFor(std::uint64_t number) {
  for (const std::size_t size : {1, 2, 4})
    if (number >> (size * 8) == 0) return size;
  return 8;
}

void appendInteger(std::string& out, std::uint64_t number) {
  const auto size = sizeFor(number);
  out += static_cast<char>(0x10 | std::countr_zero(size));
  appendBigEndian(out, number, size);
}

// The marker of an object that has a length.
void appendMarker(std::string& out, unsigned kind, std::size_t length) {
  out += static_cast<char>(kind << 4 | (length < 15 ? length : 15));
  if (length >= 15) appendInteger(out, length);
}

void appendReal(std::string& out, char marker, double number) {
  out += marker;
  appendBigEndian(out, std::bit_cast<std::uint64_t>(number), 8);
}

void appendString(std::string& out, std::string_view string) {
  const auto wide = isASCII(string) ? std::nullopt : utf16FromUTF8(string);
  appendMarker(out, wide ? 0x6 : 0x5, wide ? wide->size() / 2 : string.size());
  out += wide ? std::string_view(*wide) : string;
}

void appendData(std::string& out, const Data& data) {
  appendMarker(out, 0x4, data.size());
  out.append(reinterpret_cast<const char*>(data.data()), data.size());
}

void appendScalar(std::string& out, const Value& value) {
  if (const auto* boolean = value.boolean()) out += static_cast<char>(*boolean ? 0x09 : 0x08);
  if (const auto* integer = value.integer())
    appendInteger(out, static_cast<std::uint64_t>(*integer));
  if (const auto* real = value.real()) appendReal(out, 0x23, *real);
  if (const auto* date = value.date()) {
    const auto sinceThen = date->time_since_epoch() - std::chrono::microseconds(kFrom1970To2001);
    appendReal(out, 0x33, static_cast<double>(sinceThen.count()) / 1e6);
  }
  if (const auto* string = value.string()) appendString(out, *string);
  if (const auto* data = value.data()) appendData(out, *data);
}

class Writer {
public:
  explicit Writer(const Value& value) { add(value); }

  std::string write() const {
    const auto referenceSize = sizeFor(objects_.size());
    std::string out(kBinaryPropertyListMagic);
    std::vector<std::size_t> offsets;
    offsets.reserve(objects_.size());
    for (const auto& object : objects_) {
      offsets.push_back(out.size());
      append(out, object, referenceSize);
    }
    appendTable(out, offsets, referenceSize);
    return out;
  }

private:
  struct Object {
    Value value;                              // null for a string of a collection's, which has
    std::string_view text = {};               // its text where it stands in the collection
    std::vector<std::uint32_t> children = {}; // of a dictionary: all keys, then all values
  };

  std::uint32_t add(const Value& value) {
    const auto index = static_cast<std::uint32_t>(objects_.size());
    objects_.push_back({value});
    std::vector<std::uint32_t> children;
    children.reserve(value.size() * 2);
    if (value.isDictionary())
      for (std::size_t i = 0; i < value.size(); ++i)
        children.push_back(addString(value.keyAt(i)));
    for (std::size_t i = 0; i < value.size(); ++i) {
      const auto text = value.stringAt(i);
      children.push_back(text ? addString(*text) : add(value.at(i)));
    }
    objects_[index].children = std::move(children);
    return index;
  }

  std::uint32_t addString(std::string_view string) {
    const auto next = static_cast<std::uint32_t>(objects_.size());
    const auto [known, isNew] = strings_.try_emplace(string, next);
    if (isNew) objects_.push_back({Value(), string});
    return known->second;
  }

  static void append(std::string& out, const Object& object, std::size_t referenceSize) {
    if (object.value.isNull())
      appendString(out, object.text);
    else if (object.value.isDictionary())
      appendMarker(out, 0xD, object.value.size());
    else if (object.value.isArray())
      appendMarker(out, 0xA, object.value.size());
    else
      appendScalar(out, object.value);
    for (const auto child : object.children)
      appendBigEndian(out, child, referenceSize);
  }

  static void appendTable(std::string& out, const std::vector<std::size_t>& offsets,
                          std::size_t referenceSize) {
    const auto table = out.size();
    const auto offsetSize = sizeFor(table);
    for (const auto offset : offsets)
      appendBigEndian(out, offset, offsetSize);
    out.append(6, '\0');
    out += static_cast<char>(offsetSize);
    out += static_cast<char>(referenceSize);
    appendBigEndian(out, offsets.size(), 8);
    appendBigEndian(out, 0, 8); // the root comes first
    appendBigEndian(out, table, 8);
  }

  std::vector<Object> objects_;
  std::unordered_map<std::string_view, std::uint32_t> strings_;
};

} // namespace

std::string binaryPropertyListFromValue(const Value& value) {
  return Writer(value).write();
}

} // namespace wrenvale::platform
