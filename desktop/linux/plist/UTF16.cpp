#include "desktop/linux/plist/UTF16.h"

#include <algorithm>
#include <cstddef>

#include "base/UTF8.h"

namespace wrenvale::platform {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

void appendUnit(std::string& out, char32_t unit) {
  out += static_cast<char>(unit >> 8);
  out += static_cast<char>(unit & 0xFF);
}

void appendUTF16(std::string& out, char32_t c) {
  if (c < 0x10000) return appendUnit(out, c);
  appendUnit(out, 0xD800 + ((c - 0x10000) >> 10));
  appendUnit(out, 0xDC00 + ((c - 0x10000) & 0x3FF));
}

char32_t unitAt(std::string_view bytes, std::size_t index) {
  if (index + 1 >= bytes.size()) return 0;
  return static_cast<char32_t>(static_cast<unsigned char>(bytes[index]) << 8 |
                               static_cast<unsigned char>(bytes[index + 1]));
}

} // namespace

bool isASCII(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::optional<std::string> utf16FromUTF8(std::string_view text) {
  std::string out;
  out.reserve(text.size() * 2);
  while (!text.empty()) {
    const auto character = takeUTF8(text);
    if (!character) return std::nullopt;
    appendUTF16(out, *character);
  }
  return out;
}

std::string utf8FromUTF16(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size());
  for (std::size_t i = 0; i < bytes.size(); i += 2) {
    const auto unit = unitAt(bytes, i);
    const auto next = unitAt(bytes, i + 2);
    if (!isSurrogate(unit)) {
      appendUTF8(out, unit);
    } else if (unit < 0xDC00 && next >= 0xDC00 && next <= 0xDFFF) {
      appendUTF8(out, 0x10000 + ((unit - 0xD800) << 10) + (next - 0xDC00));
      i += 2;
    } else {
      appendUTF8(out, kReplacement);
    }
  }
  return out;
}

} // namespace wrenvale::platform
