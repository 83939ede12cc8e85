#include "base/UTF8.h"

#include <cstddef>

namespace wrenvale {

namespace {

// How many bytes follow this lead byte; nothing when it is no lead byte.
std::optional<std::size_t> continuationCount(unsigned char lead) {
  if (lead < 0x80) return 0;
  if (lead >= 0xC2 && lead < 0xE0) return 1;
  if (lead >= 0xE0 && lead < 0xF0) return 2;
  if (lead >= 0xF0 && lead < 0xF5) return 3;
  return std::nullopt;
}

} // namespace

std::optional<char32_t> takeUTF8(std::string_view& text) {
  const std::string_view whole = text;
  text.remove_prefix(1);
  const auto lead = static_cast<unsigned char>(whole.front());
  const auto more = continuationCount(lead);
  if (!more || text.size() < *more) return std::nullopt;
  char32_t c = *more == 0 ? lead : lead & (0x3FU >> *more);
  for (const char next : text.substr(0, *more)) {
    const auto byte = static_cast<unsigned char>(next);
    if ((byte & 0xC0) != 0x80) return std::nullopt;
    c = (c << 6) | (byte & 0x3F);
  }
  const char32_t least = *more == 2 ? 0x800 : *more == 3 ? 0x10000 : 0;
  if (c < least || c > 0x10FFFF || isSurrogate(c)) return std::nullopt;
  text.remove_prefix(*more);
  return c;
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

} // namespace wrenvale
