#include "desktop/linux/system/Unicode.h"

#include <algorithm>
#include <cstddef>

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

// How many bytes follow a lead byte; -1 for one that leads nothing.
int continuationCount(unsigned char lead) {
  if (lead < 0x80) return 0;
  if (lead >= 0xC2 && lead < 0xE0) return 1;
  if (lead >= 0xE0 && lead < 0xF0) return 2;
  return lead >= 0xF0 && lead < 0xF5 ? 3 : -1;
}

// Takes one character off the front; false when the text is not well-formed there.
bool takeUTF8(std::string_view& text, char32_t& c) {
  const auto lead = static_cast<unsigned char>(text.front());
  const int more = continuationCount(lead);
  if (more < 0 || text.size() <= static_cast<std::size_t>(more)) return false;
  c = more == 0 ? lead : lead & (0x3FU >> more);
  for (const char next : text.substr(1, static_cast<std::size_t>(more))) {
    const auto byte = static_cast<unsigned char>(next);
    if ((byte & 0xC0) != 0x80) return false;
    c = (c << 6) | (byte & 0x3F);
  }
  text.remove_prefix(static_cast<std::size_t>(more) + 1);
  const char32_t least = more == 2 ? 0x800 : more == 3 ? 0x10000 : 0;
  return c >= least && c <= 0x10FFFF && !isSurrogate(c);
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

void appendUTF8(std::string& out, char32_t c) {
  if (c < 0x80) {
    out += static_cast<char>(c);
    return;
  }
  const int more = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
  const unsigned lead = more == 1 ? 0xC0 : more == 2 ? 0xE0 : 0xF0;
  out += static_cast<char>(lead | (c >> (6 * more)));
  for (int shift = 6 * (more - 1); shift >= 0; shift -= 6)
    out += static_cast<char>(0x80 | ((c >> shift) & 0x3F));
}

std::optional<std::string> utf16FromUTF8(std::string_view text) {
  std::string out;
  out.reserve(text.size() * 2);
  while (!text.empty()) {
    char32_t c = 0;
    if (!takeUTF8(text, c)) return std::nullopt;
    appendUTF16(out, c);
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
