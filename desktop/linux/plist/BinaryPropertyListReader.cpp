#include "desktop/linux/plist/PropertyListFormats.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

#include "desktop/linux/plist/UTF16.h"

namespace wrenvale::platform {

namespace {

constexpr std::size_t kTrailerSize = 32;
constexpr std::chrono::seconds kFrom1970To2001(978307200);
// Seconds; dates further away are held at the ends of what Date can tell.
constexpr double kFurthestDate = 9e12;

std::uint64_t bigEndian(std::string_view bytes) {
  std::uint64_t number = 0;
  for (const char c : bytes)
    number = (number << 8) | static_cast<unsigned char>(c);
  return number;
}

Date dateFromSeconds(double since2001) {
  const double seconds = std::isnan(since2001) ? 0 : since2001;
  const double held = std::clamp(seconds, -kFurthestDate, kFurthestDate);
  return Date(std::chrono::microseconds(std::llround(held * 1e6)) + kFrom1970To2001);
}

Data dataFromBytes(std::string_view bytes) {
  const auto* begin = reinterpret_cast<const std::byte*>(bytes.data());
  return Data(begin, begin + bytes.size());
}

// Where things are in a list whose trailer makes sense.
struct Layout {
  std::size_t offsetSize;
  std::size_t referenceSize;
  std::uint64_t objectCount;
  std::uint64_t root;
  std::uint64_t table; // start of the offset table, and end of the objects
};

std::optional<Layout> layoutOf(std::string_view bytes) {
  if (bytes.size() < kBinaryPropertyListMagic.size() + kTrailerSize) return std::nullopt;
  const auto trailer = bytes.substr(bytes.size() - kTrailerSize);
  const Layout layout{static_cast<unsigned char>(trailer[6]),
                      static_cast<unsigned char>(trailer[7]), bigEndian(trailer.substr(8, 8)),
                      bigEndian(trailer.substr(16, 8)), bigEndian(trailer.substr(24, 8))};
  const auto isSize = [](std::size_t size) { return size >= 1 && size <= 8; };
  const std::uint64_t end = bytes.size() - kTrailerSize;
  if (!isSize(layout.offsetSize) || !isSize(layout.referenceSize)) return std::nullopt;
  if (layout.table < kBinaryPropertyListMagic.size() || layout.table > end) return std::nullopt;
  if (layout.objectCount > (end - layout.table) / layout.offsetSize) return std::nullopt;
  return layout;
}

// Steps through one object.
class Cursor {
public:
  Cursor(std::string_view objects, std::uint64_t position)
      : rest_(objects.substr(std::min<std::uint64_t>(position, objects.size()))) {}

  // The next `count` items of `size` bytes each.
  std::optional<std::string_view> take(std::uint64_t count, std::size_t size = 1) {
    if (count > rest_.size() / size) return std::nullopt;
    const auto taken = rest_.substr(0, count * size);
    rest_.remove_prefix(taken.size());
    return taken;
  }

  // The object's kind and the number beside it; false at the end of the objects.
  bool takeMarker(unsigned& kind, unsigned& number) {
    const auto marker = take(1);
    if (!marker) return false;
    kind = static_cast<unsigned char>(marker->front()) >> 4;
    number = static_cast<unsigned char>(marker->front()) & 15;
    return true;
  }

  // The length of an object: the marker's number, or the integer that follows.
  std::optional<std::uint64_t> takeLength(unsigned number) {
    if (number != 15) return number;
    unsigned kind = 0;
    if (!takeMarker(kind, number) || kind != 1 || number > 3) return std::nullopt;
    const auto bytes = take(std::uint64_t{1} << number);
    return bytes ? std::optional(bigEndian(*bytes)) : std::nullopt;
  }

private:
  std::string_view rest_;
};

std::optional<Value> constant(unsigned number) {
  if (number == 8) return Value(false);
  if (number == 9) return Value(true);
  return std::nullopt;
}

Value wideInteger(std::string_view bytes) {
  const auto high = static_cast<std::int64_t>(bigEndian(bytes.substr(0, 8)));
  const auto low = bigEndian(bytes.substr(8));
  if (high == (static_cast<std::int64_t>(low) < 0 ? -1 : 0)) return static_cast<std::int64_t>(low);
  return static_cast<double>(high) * 0x1p64 + static_cast<double>(low);
}

std::optional<Value> integer(Cursor& cursor, unsigned sizeLog) {
  const auto bytes = sizeLog > 4 ? std::nullopt : cursor.take(std::uint64_t{1} << sizeLog);
  if (!bytes) return std::nullopt;
  return sizeLog == 4 ? wideInteger(*bytes) : Value(static_cast<std::int64_t>(bigEndian(*bytes)));
}

std::optional<double> realNumber(Cursor& cursor, unsigned sizeLog) {
  const auto bytes =
      sizeLog == 2 || sizeLog == 3 ? cursor.take(std::uint64_t{1} << sizeLog) : std::nullopt;
  if (!bytes) return std::nullopt;
  if (sizeLog == 3) return std::bit_cast<double>(bigEndian(*bytes));
  return std::bit_cast<float>(static_cast<std::uint32_t>(bigEndian(*bytes)));
}

std::optional<Value> real(Cursor& cursor, unsigned sizeLog) {
  const auto number = realNumber(cursor, sizeLog);
  return number ? std::optional<Value>(*number) : std::nullopt;
}

std::optional<Value> date(Cursor& cursor, unsigned sizeLog) {
  const auto seconds = sizeLog == 3 ? realNumber(cursor, sizeLog) : std::nullopt;
  return seconds ? std::optional<Value>(dateFromSeconds(*seconds)) : std::nullopt;
}

std::optional<Value> reference(Cursor& cursor, unsigned sizeLessOne) {
  const auto bytes = sizeLessOne < 8 ? cursor.take(sizeLessOne + 1) : std::nullopt;
  return bytes ? std::optional<Value>(static_cast<std::int64_t>(bigEndian(*bytes))) : std::nullopt;
}

class Reader {
public:
  Reader(std::string_view bytes, const Layout& layout)
      : bytes_(bytes)
      , layout_(layout) {}

  std::optional<Value> read(std::uint64_t index, int nesting = 0) {
    if (index >= layout_.objectCount || !budget_.spend(0)) return std::nullopt;
    const auto entry =
        bytes_.substr(layout_.table + index * layout_.offsetSize, layout_.offsetSize);
    Cursor cursor(bytes_.substr(0, layout_.table), bigEndian(entry));
    unsigned kind = 0;
    unsigned number = 0;
    if (!cursor.takeMarker(kind, number)) return std::nullopt;
    switch (kind) {
    case 0x0:
      return constant(number);
    case 0x1:
      return integer(cursor, number);
    case 0x2:
      return real(cursor, number);
    case 0x3:
      return date(cursor, number);
    case 0x8:
      return reference(cursor, number);
    default:
      return sized(kind, cursor, number, nesting);
    }
  }

private:
  std::optional<Value> sized(unsigned kind, Cursor& cursor, unsigned number, int nesting) {
    const auto length = cursor.takeLength(number);
    if (!length) return std::nullopt;
    switch (kind) {
    case 0x4:
    case 0x5:
    case 0x6:
      return text(kind, cursor.take(*length, kind == 0x6 ? 2 : 1));
    case 0xA:
    case 0xC: // a set
      return array(cursor.take(*length, layout_.referenceSize), nesting + 1);
    case 0xD:
      return dictionary(cursor, *length, nesting + 1);
    default:
      return std::nullopt;
    }
  }

  // Data, a string of bytes, or one of UTF-16.
  std::optional<Value> text(unsigned kind, std::optional<std::string_view> bytes) {
    if (!bytes || !budget_.spend(bytes->size())) return std::nullopt;
    if (kind == 0x4) return Value(dataFromBytes(*bytes));
    return kind == 0x5 ? Value(*bytes) : Value(utf8FromUTF16(*bytes));
  }

  std::optional<Value> child(std::string_view references, std::size_t index, int nesting) {
    const auto size = layout_.referenceSize;
    return read(bigEndian(references.substr(index * size, size)), nesting);
  }

  std::optional<Value> array(std::optional<std::string_view> items, int nesting) {
    if (!items || nesting > kMaxPropertyListNesting) return std::nullopt;
    Value::Array array;
    for (std::size_t i = 0; i < items->size() / layout_.referenceSize; ++i) {
      auto item = child(*items, i, nesting);
      if (!item) return std::nullopt;
      array.push_back(*std::move(item));
    }
    return Value(std::move(array));
  }

  std::optional<Value> dictionary(Cursor& cursor, std::uint64_t length, int nesting) {
    const auto keys = cursor.take(length, layout_.referenceSize);
    const auto items = cursor.take(length, layout_.referenceSize);
    if (!keys || !items || nesting > kMaxPropertyListNesting) return std::nullopt;
    Value::Dictionary dictionary;
    for (std::size_t i = 0; i < length; ++i) {
      const auto key = child(*keys, i, nesting);
      auto item = child(*items, i, nesting);
      if (!key || !key->string() || !item) return std::nullopt;
      dictionary.insert_or_assign(*key->string(), *std::move(item));
    }
    return Value(std::move(dictionary));
  }

  const std::string_view bytes_;
  const Layout layout_;
  PropertyListBudget budget_;
};

} // namespace

std::optional<Value> valueFromBinaryPropertyList(std::string_view bytes) {
  const auto layout = layoutOf(bytes);
  return layout ? Reader(bytes, *layout).read(layout->root) : std::nullopt;
}

} // namespace wrenvale::platform
