#include "core/Codecs.h"

#include <wrenvale/Base32.h>
#include <wrenvale/HTMLAdditions.h>

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

namespace {

// The five bits that a character stands for, or -1.
int decoded(char c) {
  if (c >= 'A' && c <= 'Z') return c - 'A';
  if (c >= 'a' && c <= 'z') return c - 'a';
  if (c >= '2' && c <= '7') return c - '2' + 26;
  return -1;
}

// Only a last group of 2, 4, 5 or 7 characters ends on a whole byte.
bool isLengthOfSomething(std::size_t length) {
  const std::size_t last = length % 8;
  return last != 1 && last != 3 && last != 6;
}

} // namespace

std::optional<Data> dataWithBase32String(std::string_view text) {
  if (!isLengthOfSomething(text.size())) return std::nullopt;

  Data bytes;
  bytes.reserve(text.size() * 5 / 8);
  unsigned pending = 0; // bits not yet written, the most significant first
  int pendingBits = 0;
  for (const char c : text) {
    const int value = decoded(c);
    if (value < 0) return std::nullopt;
    pending = (pending << 5) | static_cast<unsigned>(value);
    pendingBits += 5;
    if (pendingBits < 8) continue;
    pendingBits -= 8;
    bytes.push_back(static_cast<std::byte>(pending >> pendingBits));
    pending &= (1U << pendingBits) - 1;
  }
  if (pending != 0) return std::nullopt;
  return bytes;
}

namespace {

bool isUnreserved(unsigned char byte) {
  return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') ||
         (byte >= '0' && byte <= '9') || byte == '-' || byte == '.' || byte == '_' || byte == '~';
}

} // namespace

std::string urlEncoded(std::string_view text) {
  constexpr char kHex[] = "0123456789ABCDEF";
  std::string encoded;
  encoded.reserve(text.size());
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (isUnreserved(byte)) {
      encoded += c;
    } else {
      encoded += {'%', kHex[byte >> 4], kHex[byte & 15]};
    }
  }
  return encoded;
}

} // namespace wrenvale
