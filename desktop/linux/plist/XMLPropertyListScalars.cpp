#include "desktop/linux/plist/XMLPropertyListScalars.h"

#include <charconv>

#include "base/UTF8.h"
#include "desktop/linux/system/Environment.h"

namespace wrenvale::platform {

namespace {

constexpr auto kNone = std::string_view::npos;
constexpr std::string_view kSpace = " \t\r\n";

// The whole text as a number; `format` is a base or a floating-point format.
template <class Number, class Format>
std::optional<Number> number(std::string_view text, Format format) {
  Number result{};
  const auto* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, result, format);
  return error == std::errc() && stop == end && !text.empty() ? std::optional(result)
                                                              : std::nullopt;
}

std::optional<Value> real(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  const auto result = number<double>(text, std::chars_format::general);
  return result ? std::optional<Value>(*result) : std::nullopt;
}

std::optional<Value> hexadecimal(std::string_view digits) {
  const auto bits = number<std::uint64_t>(digits, 16);
  return bits ? std::optional<Value>(static_cast<std::int64_t>(*bits)) : std::nullopt;
}

std::optional<Value> integer(std::string_view text) {
  if (text.starts_with("0x") || text.starts_with("0X")) return hexadecimal(text.substr(2));
  if (text.starts_with('+')) text.remove_prefix(1);
  if (const auto result = number<std::int64_t>(text, 10)) return Value(*result);
  const bool isTooLong = text.find_first_not_of("-0123456789") == kNone;
  return isTooLong ? real(text) : std::nullopt;
}

std::optional<Value> date(std::string_view text) {
  constexpr std::string_view kPattern = "0000-00-00T00:00:00Z";
  if (text.size() != kPattern.size()) return std::nullopt;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isDigit = text[i] >= '0' && text[i] <= '9';
    if (kPattern[i] == '0' ? !isDigit : text[i] != kPattern[i]) return std::nullopt;
  }
  const auto part = [&](std::size_t start, std::size_t length) {
    return number<int>(text.substr(start, length), 10).value_or(0);
  };
  using namespace std::chrono;
  const auto day = year(part(0, 4)) / static_cast<int>(part(5, 2)) / part(8, 2);
  if (!day.ok()) return std::nullopt;
  return Value(
      Date(sys_days(day) + hours(part(11, 2)) + minutes(part(14, 2)) + seconds(part(17, 2))));
}

int base64Digit(char c) {
  constexpr std::string_view kDigits =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  const auto digit = kDigits.find(c);
  return digit == kNone ? -1 : static_cast<int>(digit);
}

std::optional<Value> data(std::string_view text) {
  Data bytes;
  unsigned bits = 0;
  int count = 0;
  for (const char c : text) {
    if (kSpace.find(c) != kNone || c == '=') continue;
    const int digit = base64Digit(c);
    if (digit < 0) return std::nullopt;
    bits = (bits << 6) | static_cast<unsigned>(digit);
    count += 6;
    if (count < 8) continue;
    count -= 8;
    bytes.push_back(static_cast<std::byte>((bits >> count) & 0xFF));
  }
  return Value(std::move(bytes));
}

std::optional<char32_t> characterForNumber(std::string_view text) {
  const bool isHex = text.starts_with('x') || text.starts_with('X');
  const auto code = number<std::uint32_t>(text.substr(isHex ? 1 : 0), isHex ? 16 : 10);
  if (!code || *code == 0 || *code > 0x10FFFF || isSurrogate(*code)) return std::nullopt;
  return static_cast<char32_t>(*code);
}

std::optional<char32_t> characterForReference(std::string_view name) {
  if (name.starts_with('#')) return characterForNumber(name.substr(1));
  if (name == "amp") return U'&';
  if (name == "lt") return U'<';
  if (name == "gt") return U'>';
  if (name == "quot") return U'"';
  if (name == "apos") return U'\'';
  return std::nullopt;
}

} // namespace

std::optional<Value> scalarFromXML(std::string_view name, std::string_view content) {
  if (name == "string") return Value(content);
  const auto text = trimmed(content);
  if (name == "true" || name == "false")
    return text.empty() ? std::optional<Value>(name == "true") : std::nullopt;
  if (name == "integer") return integer(text);
  if (name == "real") return real(text);
  if (name == "date") return date(text);
  if (name == "data") return data(text);
  return std::nullopt;
}

bool appendUnescaped(std::string& out, std::string_view text) {
  for (auto start = text.find('&'); start != kNone; start = text.find('&')) {
    const auto end = text.find(';', start);
    if (end == kNone) return false;
    const auto character = characterForReference(text.substr(start + 1, end - start - 1));
    if (!character) return false;
    out += text.substr(0, start);
    appendUTF8(out, *character);
    text.remove_prefix(end + 1);
  }
  out += text;
  return true;
}

} // namespace wrenvale::platform
