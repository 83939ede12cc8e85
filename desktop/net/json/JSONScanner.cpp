#include "desktop/net/json/JSONScanner.h"

#include <utility>

#include "desktop/net/json/UTF8.h"

namespace wrenvale::platform {

namespace {

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}
bool isSpace(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}
bool isControl(char c) {
  return static_cast<unsigned char>(c) < 0x20;
}

int hexDigit(char c) {
  if (isDigit(c)) return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

} // namespace

JSONScanner::JSONScanner(std::string_view text, NumberHandler acceptsNumber)
    : text_(text)
    , acceptsNumber_(std::move(acceptsNumber)) {}

std::optional<JSONFault> JSONScanner::firstFault() {
  scanDocument();
  return fault_;
}

bool JSONScanner::scanDocument() {
  skipSpace();
  if (peek() != '[' && peek() != '{') return fail("the document is no array and no dictionary");
  for (bool valueFollows = true; valueFollows;) {
    if (!scanValue() || !scanAfterValue(valueFollows)) return false;
  }
  return position_ == text_.size() || fail("something follows the end of the document");
}

// A value; of an array or a dictionary with children only what stands before its first child, and
// so on down to a value without any.
bool JSONScanner::scanValue() {
  skipSpace();
  while (peek() == '[' || peek() == '{') {
    bool isEmpty = false;
    if (!scanOpening(isEmpty)) return false;
    if (isEmpty) return true;
  }
  switch (peek()) {
  case '"':
    return scanString();
  case 't':
    return scanLiteral("true");
  case 'f':
    return scanLiteral("false");
  case 'n':
    return scanLiteral("null");
  default:
    return scanNumber();
  }
}

// Leaves the position before the first child, if there is any.
bool JSONScanner::scanOpening(bool& isEmpty) {
  const auto begin = position_;
  const char closing = peek() == '[' ? ']' : '}';
  ++position_;
  skipSpace();
  isEmpty = skip(closing);
  if (isEmpty) return true;
  if (open_.size() == kJSONMaxDepth) return failAt(begin, "nested too deeply");
  open_ += closing;
  return closing == ']' || scanKey();
}

// What stands between a value and the next one: closing brackets, a comma, a key.
bool JSONScanner::scanAfterValue(bool& valueFollows) {
  skipSpace();
  while (!open_.empty() && skip(open_.back())) {
    open_.pop_back();
    skipSpace();
  }
  valueFollows = !open_.empty();
  if (open_.empty()) return true;
  if (!skip(',')) return fail("a comma or a closing bracket is missing");
  return open_.back() == ']' || scanKey();
}

// Leaves the position before the value's first character.
bool JSONScanner::scanKey() {
  skipSpace();
  if (peek() != '"') return fail("a key is missing");
  if (!scanString()) return false;
  skipSpace();
  if (!skip(':')) return fail("a colon is missing");
  skipSpace();
  return true;
}

bool JSONScanner::scanString() {
  ++position_;
  while (position_ < text_.size()) {
    if (skip('"')) return true;
    if (peek() == '\\') {
      if (!scanEscape()) return false;
      continue;
    }
    if (isControl(peek())) return fail("a control character stands in a string");
    const auto length = utf8SequenceLength(text_.substr(position_));
    if (length == 0) return fail("the text is not UTF-8");
    position_ += length;
  }
  return fail("a string does not end");
}

bool JSONScanner::scanEscape() {
  ++position_;
  if (skip('u')) return scanUnicodeEscape();
  if (std::string_view("\"\\/bfnrt").find(peek()) == std::string_view::npos)
    return fail("no such escape");
  ++position_;
  return true;
}

// One code unit, or the two that make up a character beyond the first 65,536.
bool JSONScanner::scanUnicodeEscape() {
  const auto begin = position_;
  unsigned unit = 0;
  if (!scanCodeUnit(unit)) return false;
  if (unit < 0xD800 || unit > 0xDFFF) return true;
  unsigned low = 0;
  if (unit > 0xDBFF || !skip('\\') || !skip('u')) return failAt(begin, "half a character");
  if (!scanCodeUnit(low)) return false;
  return (low >= 0xDC00 && low <= 0xDFFF) || failAt(begin, "half a character");
}

bool JSONScanner::scanCodeUnit(unsigned& unit) {
  for (int i = 0; i < 4; ++i, ++position_) {
    const int digit = hexDigit(peek());
    if (digit < 0) return fail("four hexadecimal digits are missing");
    unit = unit * 16 + static_cast<unsigned>(digit);
  }
  return true;
}

bool JSONScanner::scanNumber() {
  const auto begin = position_;
  skip('-');
  if (position_ == begin && !isDigit(peek())) return fail("a value is missing");
  if (!skip('0') && !scanDigits()) return false;
  if (skip('.') && !scanDigits()) return false;
  if (skip('e') || skip('E')) {
    if (!skip('+')) skip('-');
    if (!scanDigits()) return false;
  }
  return acceptsNumber_(text_.substr(begin, position_ - begin)) ||
         failAt(begin, "a number is too large");
}

bool JSONScanner::scanDigits() {
  if (!isDigit(peek())) return fail("a digit is missing");
  while (isDigit(peek()))
    ++position_;
  return true;
}

bool JSONScanner::scanLiteral(std::string_view literal) {
  for (const char c : literal) {
    if (!skip(c)) return fail("no such word");
  }
  return true;
}

bool JSONScanner::skip(char c) {
  if (position_ == text_.size() || text_[position_] != c) return false;
  ++position_;
  return true;
}

void JSONScanner::skipSpace() {
  while (position_ < text_.size() && isSpace(text_[position_]))
    ++position_;
}

bool JSONScanner::fail(const char* message) {
  return failAt(position_, position_ < text_.size() ? message : "the text ends too early");
}

bool JSONScanner::failAt(std::size_t offset, const char* message) {
  fault_ = JSONFault{.message = message, .offset = offset};
  return false;
}

} // namespace wrenvale::platform
