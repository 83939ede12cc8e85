// Where a text stops being a JSON document: the second look at a text that the fast parser refused.

#ifndef WRENVALE_DESKTOP_NET_JSON_JSONSCANNER_H
#define WRENVALE_DESKTOP_NET_JSON_JSONSCANNER_H

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace wrenvale::platform {

/// How many arrays and dictionaries may stand within one another; empty ones are not counted.
inline constexpr std::size_t kJSONMaxDepth = 512;

struct JSONFault {
  const char* message = ""; ///< what is wrong, for people
  std::size_t offset = 0;   ///< the first byte that cannot be part of a document
};

/// Reads a whole text by the grammar of RFC 8259, without recursion and without building anything.
/// The top level has to be an array or a dictionary. One scanner reads one text.
class JSONScanner {
public:
  /// Told of every number in turn; an answer of false makes the number a fault.
  using NumberHandler = std::function<bool(std::string_view number)>;

  JSONScanner(std::string_view text, NumberHandler acceptsNumber);

  /// The first fault; nothing when the text is a document.
  std::optional<JSONFault> firstFault();

private:
  bool scanDocument();
  bool scanValue();
  bool scanAfterValue(bool& valueFollows);
  bool scanOpening(bool& isEmpty);
  bool scanKey();
  bool scanString();
  bool scanEscape();
  bool scanUnicodeEscape();
  bool scanCodeUnit(unsigned& unit);
  bool scanNumber();
  bool scanDigits();
  bool scanLiteral(std::string_view literal);

  char peek() const { return position_ < text_.size() ? text_[position_] : '\0'; }
  bool skip(char c);
  void skipSpace();
  bool fail(const char* message);
  bool failAt(std::size_t offset, const char* message);

  const std::string_view text_;
  const NumberHandler acceptsNumber_;
  std::size_t position_ = 0;
  std::string open_; ///< the brackets still to be closed, as their closing characters
  std::optional<JSONFault> fault_;
};

} // namespace wrenvale::platform

#endif
