#include "desktop/net/json/JSONReader.h"

#include <algorithm>
#include <exception>
#include <utility>
#include <vector>

#include "desktop/net/json/JSONScanner.h"
#include "desktop/net/json/JSONWindow.h"

namespace wrenvale::platform {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
// Makes a whole number a real of the same value.
constexpr std::string_view kExponent = "e0";

struct Parsed {
  JSONDocument document;
  simdjson::error_code error = simdjson::SUCCESS;
};

// `text` needs not be padded; the padding is added here.
Parsed parse(std::string& text, std::size_t begin) {
  const auto size = text.size() - begin;
  text.append(simdjson::SIMDJSON_PADDING, ' ');
  simdjson::dom::parser parser;
  auto document = std::make_shared<simdjson::dom::document>();
  // The parser counts the document itself as a level.
  const auto capacity = std::max(size, simdjson::dom::MINIMAL_DOCUMENT_CAPACITY);
  auto error = parser.allocate(capacity, kJSONMaxDepth + 1);
  if (!error) error = parser.parse_into_document(*document, &text[begin], size, false).error();
  text.resize(begin + size);
  return {.document = std::move(document), .error = error};
}

// Whether the parser takes a number for certain; saves trying most of them.
bool isModest(std::string_view number) {
  return number.size() <= 18 && number.find_first_of("eE") == std::string_view::npos;
}

bool isReadable(std::string_view number, std::string_view suffix = {}) {
  std::string text = "[";
  text.append(number).append(suffix).append("]");
  return parse(text, 0).error == simdjson::SUCCESS;
}

bool isWhole(std::string_view number) {
  return number.find_first_of(".eE") == std::string_view::npos;
}

// Whole numbers that are too long for the parser, to be read as reals.
class LongNumbers {
public:
  explicit LongNumbers(const std::string& text)
      : text_(text) {}

  // False when the number cannot be read as a real either.
  bool accept(std::string_view number) {
    if (isModest(number) || isReadable(number)) return true;
    if (!isWhole(number) || !isReadable(number, kExponent)) return false;
    ends_.push_back(static_cast<std::size_t>(number.data() - text_.data()) + number.size());
    return true;
  }

  bool empty() const { return ends_.empty(); }

  std::string rewritten() const {
    std::string result;
    result.reserve(text_.size() + ends_.size() * kExponent.size() + simdjson::SIMDJSON_PADDING);
    std::size_t begin = 0;
    for (const auto end : ends_) {
      result.append(text_, begin, end - begin).append(kExponent);
      begin = end;
    }
    return result.append(text_, begin);
  }

private:
  const std::string& text_;
  std::vector<std::size_t> ends_;
};

JSONResult failure(std::string error, std::size_t offset) {
  return {.object = std::nullopt, .error = std::move(error), .errorOffset = offset};
}

JSONResult success(const JSONDocument& document) {
  return {.object = valueOf(document, document->root()), .error = {}};
}

bool hasChildrenAtTop(const Parsed& parsed) {
  if (parsed.error) return false;
  const auto root = parsed.document->root();
  return root.is_array() || root.is_object();
}

// The slow way for a text that the parser refused: says where it is wrong, or helps the parser over
// long numbers.
JSONResult readAgain(std::string text, std::size_t begin, simdjson::error_code error) {
  LongNumbers longNumbers(text);
  const auto accept = [&](std::string_view number) { return longNumbers.accept(number); };
  const auto fault = JSONScanner(std::string_view(text).substr(begin), accept).firstFault();
  if (fault) return failure(fault->message, begin + fault->offset);
  if (longNumbers.empty()) return failure(simdjson::error_message(error), 0);
  text = longNumbers.rewritten();
  const auto parsed = parse(text, begin);
  if (parsed.error) return failure(simdjson::error_message(parsed.error), 0);
  return success(parsed.document);
}

JSONResult read(std::string text) {
  const auto begin = text.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
  auto parsed = parse(text, begin);
  if (!hasChildrenAtTop(parsed)) return readAgain(std::move(text), begin, parsed.error);
  text = std::string(); // before the first window takes memory
  return success(parsed.document);
}

} // namespace

JSONResult JSONReader::JSONObjectWithData(std::string data) {
  try {
    return read(std::move(data));
  } catch (const std::exception& exception) { // out of memory
    return failure(exception.what(), 0);
  }
}

} // namespace wrenvale::platform
