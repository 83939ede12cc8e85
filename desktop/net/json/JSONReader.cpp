#include "desktop/net/json/JSONReader.h"

#include <algorithm>
#include <exception>
#include <memory>
#include <string_view>
#include <utility>

#include "desktop/net/json/JSONWindow.h"

namespace wrenvale::platform {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
// The parser counts the document itself as a level.
constexpr std::size_t kMostLevels = 512 + 1;

// Null for a text that is no document. The text is gone when this returns.
std::shared_ptr<const simdjson::dom::document> parse(std::string text) {
  const auto begin = text.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
  const auto size = text.size() - begin;
  text.append(simdjson::SIMDJSON_PADDING, ' ');
  simdjson::dom::parser parser;
  auto document = std::make_shared<simdjson::dom::document>();
  const auto capacity = std::max(size, simdjson::dom::MINIMAL_DOCUMENT_CAPACITY);
  if (parser.allocate(capacity, kMostLevels)) return nullptr;
  if (parser.parse_into_document(*document, &text[begin], size, false).error()) return nullptr;
  return document;
}

} // namespace

std::optional<Value> JSONReader::JSONObjectWithData(std::string data) {
  try {
    const auto document = parse(std::move(data));
    if (!document) return std::nullopt;
    const auto root = document->root();
    if (!root.is_array() && !root.is_object()) return std::nullopt;
    return valueOf(document, root);
  } catch (const std::exception&) { // out of memory
    return std::nullopt;
  }
}

} // namespace wrenvale::platform
