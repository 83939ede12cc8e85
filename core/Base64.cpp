#include "core/Base64.h"

#include <cstdint>

namespace wrenvale {

namespace {

// Three bytes, missing ones as zero.
std::uint32_t groupAt(std::string_view bytes, std::size_t start) {
  std::uint32_t group = 0;
  for (std::size_t i = start; i < start + 3; ++i)
    group = (group << 8) | (i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0U);
  return group;
}

} // namespace

std::string base64Encoded(std::string_view bytes) {
  constexpr char kAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  text.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t start = 0; start < bytes.size(); start += 3) {
    const auto group = groupAt(bytes, start);
    for (int shift = 18; shift >= 0; shift -= 6)
      text += kAlphabet[(group >> shift) & 63];
  }
  for (std::size_t missing = (3 - bytes.size() % 3) % 3; missing > 0; --missing)
    text[text.size() - missing] = '=';
  return text;
}

} // namespace wrenvale
