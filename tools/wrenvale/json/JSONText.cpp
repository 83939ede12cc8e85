#include "tools/wrenvale/json/JSONText.h"

#include <algorithm>
#include <cstdio>

namespace wrenvale::kit {

namespace {

std::string escapedUnit(unsigned char unit) {
  char text[8];
  std::snprintf(text, sizeof text, "\\u%04x", unit);
  return text;
}

bool isControl(unsigned char byte) {
  return byte < 0x20 || byte == 0x7F;
}

bool isContinuation(char byte) {
  return (byte & 0xC0) == 0x80;
}

} // namespace

std::string jsonString(std::string_view text) {
  std::string result = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') result += '\\';
    if (isControl(static_cast<unsigned char>(c)))
      result += escapedUnit(static_cast<unsigned char>(c));
    else
      result += c;
  }
  return result + '"';
}

std::string readable(std::string_view text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    const auto next = i + 1 < text.size() ? static_cast<unsigned char>(text[i + 1]) : 0;
    if (byte == 0xC2 && next >= 0x80 && next < 0xA0) // U+0080 to U+009F
      result += escapedUnit(static_cast<unsigned char>(text[++i]));
    else if (isControl(byte))
      result += escapedUnit(byte);
    else
      result += text[i];
  }
  return result;
}

TextPlace TextPlaces::placeOf(std::size_t offset) {
  for (; position_ < std::min(offset, text_.size()); ++position_)
    if (text_[position_] == '\n')
      place_ = {.line = place_.line + 1, .column = 1};
    else if (!isContinuation(text_[position_]))
      ++place_.column;
  return place_;
}

} // namespace wrenvale::kit
