#include "base/JSONWriter.h"

#include "base/UTF8.h"

namespace wrenvale {

namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

// Writes one character beyond ASCII, or the replacement for a byte that belongs to none. Escapes
// the two line separators of Unicode, which not every script engine takes within a string.
void writeBeyondASCII(std::string& out, std::string_view& text) {
  const auto before = text;
  const auto character = takeUTF8(text);
  if (!character)
    out += kReplacement;
  else if (*character == 0x2028)
    out += "\\u2028";
  else if (*character == 0x2029)
    out += "\\u2029";
  else
    out += before.substr(0, before.size() - text.size());
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
