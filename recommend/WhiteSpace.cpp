#include "recommend/WhiteSpace.h"

#include <cstddef>

namespace wrenvale::recommend {

namespace {

constexpr std::string_view kWhiteSpace[] = {
    "\t",           "\n",           "\v",           "\f",           "\r",           " ",
    "\xC2\x85",     "\xC2\xA0",     "\xE1\x9A\x80",                 // U+0085, U+00A0, U+1680
    "\xE2\x80\x80", "\xE2\x80\x81", "\xE2\x80\x82", "\xE2\x80\x83", // U+2000 to U+200A
    "\xE2\x80\x84", "\xE2\x80\x85", "\xE2\x80\x86", "\xE2\x80\x87", "\xE2\x80\x88", "\xE2\x80\x89",
    "\xE2\x80\x8A", "\xE2\x80\xA8", "\xE2\x80\xA9", // U+2028, U+2029
    "\xE2\x80\xAF", "\xE2\x81\x9F", "\xE3\x80\x80", // U+202F, U+205F, U+3000
};

bool isPrintableASCII(char c) {
  return c > ' ' && c <= '~';
}

// Length of the white space that the text begins with, 0 when it begins with something else.
std::size_t leadingSpace(std::string_view text) {
  if (text.empty() || isPrintableASCII(text.front())) return 0;
  for (const auto space : kWhiteSpace)
    if (text.starts_with(space)) return space.size();
  return 0;
}

std::size_t trailingSpace(std::string_view text) {
  if (text.empty() || isPrintableASCII(text.back())) return 0;
  for (const auto space : kWhiteSpace)
    if (text.ends_with(space)) return space.size();
  return 0;
}

} // namespace

std::string_view trimmed(std::string_view text) {
  while (const auto length = leadingSpace(text))
    text.remove_prefix(length);
  while (const auto length = trailingSpace(text))
    text.remove_suffix(length);
  return text;
}

} // namespace wrenvale::recommend
