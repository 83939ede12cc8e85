#include "desktop/net/json/UTF8.h"

namespace wrenvale::platform {

namespace {

// The bytes that a character may begin with, and what its second byte may be; all later bytes are
// 80 to BF. The narrower ranges keep out overlong forms, surrogates and what lies above 10FFFF.
struct Sequence {
  unsigned char firstLow, firstHigh;
  std::size_t length;
  unsigned char secondLow, secondHigh;
};

constexpr Sequence kSequences[] = {
    {0x00, 0x7F, 1, 0x00, 0x00}, {0xC2, 0xDF, 2, 0x80, 0xBF}, {0xE0, 0xE0, 3, 0xA0, 0xBF},
    {0xE1, 0xEC, 3, 0x80, 0xBF}, {0xED, 0xED, 3, 0x80, 0x9F}, {0xEE, 0xEF, 3, 0x80, 0xBF},
    {0xF0, 0xF0, 4, 0x90, 0xBF}, {0xF1, 0xF3, 4, 0x80, 0xBF}, {0xF4, 0xF4, 4, 0x80, 0x8F}};

bool isWithin(char c, unsigned char low, unsigned char high) {
  const auto byte = static_cast<unsigned char>(c);
  return byte >= low && byte <= high;
}

bool begins(std::string_view text, const Sequence& sequence) {
  if (text.size() < sequence.length) return false;
  if (!isWithin(text[0], sequence.firstLow, sequence.firstHigh)) return false;
  if (sequence.length > 1 && !isWithin(text[1], sequence.secondLow, sequence.secondHigh))
    return false;
  for (std::size_t i = 2; i < sequence.length; ++i) {
    if (!isWithin(text[i], 0x80, 0xBF)) return false;
  }
  return true;
}

} // namespace

std::size_t utf8SequenceLength(std::string_view text) {
  for (const auto& sequence : kSequences) {
    if (begins(text, sequence)) return sequence.length;
  }
  return 0;
}

} // namespace wrenvale::platform
