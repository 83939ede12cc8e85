#include "base/JSONWriter.h"

#include <algorithm>
#include <cstddef>

namespace wrenvale {

namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

struct Lead {
  unsigned char first, last;             ///< first bytes of this kind
  unsigned char secondFirst, secondLast; ///< what may follow at once
  std::size_t length;
};

// Well-formed sequences of more than one byte, after the Unicode standard's table of that name:
// overlong forms, surrogates and anything beyond U+10FFFF are left out by their second byte.
constexpr Lead kLeads[] = {
    {0xC2, 0xDF, 0x80, 0xBF, 2}, {0xE0, 0xE0, 0xA0, 0xBF, 3}, {0xE1, 0xEC, 0x80, 0xBF, 3},
    {0xED, 0xED, 0x80, 0x9F, 3}, {0xEE, 0xEF, 0x80, 0xBF, 3}, {0xF0, 0xF0, 0x90, 0xBF, 4},
    {0xF1, 0xF3, 0x80, 0xBF, 4}, {0xF4, 0xF4, 0x80, 0x8F, 4},
};

bool isTrailing(char c) {
  return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

bool begins(const Lead& lead, std::string_view text) {
  const auto first = static_cast<unsigned char>(text[0]);
  if (first < lead.first || first > lead.last || text.size() < lead.length) return false;
  const auto second = static_cast<unsigned char>(text[1]);
  const auto rest = text.substr(2, lead.length - 2);
  return second >= lead.secondFirst && second <= lead.secondLast &&
         std::all_of(rest.begin(), rest.end(), isTrailing);
}

// Length of the character beyond ASCII that the text begins with; 0 when it begins with none.
std::size_t sequenceLength(std::string_view text) {
  for (const auto& lead : kLeads)
    if (begins(lead, text)) return lead.length;
  return 0;
}

// Steps over one character beyond ASCII, or one byte that belongs to none. The two line separators
// of Unicode are escaped, since not every script engine takes them within a string.
void writeBeyondASCII(std::string& out, std::string_view& text) {
  const auto length = sequenceLength(text);
  const auto character = text.substr(0, length);
  text.remove_prefix(std::max<std::size_t>(length, 1));
  if (character == "\xE2\x80\xA8") {
    out += "\\u2028";
  } else if (character == "\xE2\x80\xA9") {
    out += "\\u2029";
  } else {
    out += length ? character : kReplacement;
  }
}

void writeASCII(std::string& out, char c) {
  constexpr char kHex[] = "0123456789abcdef";
  switch (c) {
  case '"':
  case '\\':
    out += {'\\', c};
    break;
  case '\n':
    out += "\\n";
    break;
  case '\r':
    out += "\\r";
    break;
  case '\t':
    out += "\\t";
    break;
  default:
    if (c >= ' ') {
      out += c;
    } else {
      out.append("\\u00") += {kHex[c >> 4], kHex[c & 15]};
    }
  }
}

void writeString(std::string& out, std::string_view text) {
  out += '"';
  while (!text.empty()) {
    if (static_cast<unsigned char>(text[0]) >= 0x80) {
      writeBeyondASCII(out, text);
    } else {
      writeASCII(out, text[0]);
      text.remove_prefix(1);
    }
  }
  out += '"';
}

void writeValue(std::string& out, const Value& value) {
  if (const auto* string = value.string()) {
    writeString(out, *string);
  } else if (const auto* integer = value.integer()) {
    out += std::to_string(*integer);
  } else {
    out += "null";
  }
}

void writeObject(std::string& out, const JSONObject& object) {
  const char* separator = "  {\n    ";
  for (const auto& [key, value] : object) {
    out += separator;
    writeString(out, key);
    out += " : ";
    writeValue(out, value);
    separator = ",\n    ";
  }
  out += object.empty() ? "  {}" : "\n  }";
}

} // namespace

std::string prettyPrintedJSON(const std::vector<JSONObject>& objects) {
  if (objects.empty()) return "[]";
  std::string out;
  const char* separator = "[\n";
  for (const auto& object : objects) {
    out += separator;
    writeObject(out, object);
    separator = ",\n";
  }
  return out += "\n]";
}

} // namespace wrenvale
