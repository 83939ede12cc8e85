#include "desktop/linux/plist/PropertyListFormats.h"

#include <algorithm>

#include "desktop/linux/plist/XMLPropertyListScalars.h"

namespace wrenvale::platform {

namespace {

constexpr auto kNone = std::string_view::npos;
constexpr std::string_view kSpace = " \t\r\n";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// Of an end tag, the name begins with "/".
struct Tag {
  std::string_view name;
  bool isEmpty = false;
};

class Reader {
public:
  explicit Reader(std::string_view xml)
      : rest_(xml) {
    if (rest_.starts_with(kByteOrderMark)) skip(kByteOrderMark.size());
  }

  std::optional<Value> read() {
    auto tag = takeTag();
    if (!tag || tag->name != "plist") return tag ? element(*tag, 0) : std::nullopt;
    tag = tag->isEmpty ? std::nullopt : takeTag();
    auto value = tag ? element(*tag, 0) : std::nullopt;
    const auto end = takeTag();
    return end && end->name == "/plist" ? value : std::nullopt;
  }

private:
  void skip(std::size_t length) { rest_.remove_prefix(std::min(length, rest_.size())); }

  // Steps over all up to and with `end`; false when there is none.
  bool skipPast(std::string_view end, std::size_t from) {
    const auto position = rest_.find(end, from);
    if (position != kNone) skip(position + end.size());
    return position != kNone;
  }

  bool skipDoctype() {
    const auto end = findUnquoted("[>");
    if (end == kNone || rest_[end] == '[') return false;
    skip(end + 1);
    return true;
  }

  // Steps over what may stand between elements.
  bool skipToTag() {
    for (;;) {
      skip(std::min(rest_.find_first_not_of(kSpace), rest_.size()));
      bool skipped = false;
      if (rest_.starts_with("<!--"))
        skipped = skipPast("-->", 4);
      else if (rest_.starts_with("<?"))
        skipped = skipPast("?>", 2);
      else if (rest_.starts_with("<!DOCTYPE"))
        skipped = skipDoctype();
      if (!skipped) return rest_.starts_with('<') && !rest_.starts_with("<!");
    }
  }

  std::size_t findUnquoted(std::string_view characters) const {
    char quote = 0;
    for (std::size_t i = 0; i < rest_.size(); ++i) {
      if (quote) {
        if (rest_[i] == quote) quote = 0;
      } else if (rest_[i] == '"' || rest_[i] == '\'') {
        quote = rest_[i];
      } else if (characters.find(rest_[i]) != kNone) {
        return i;
      }
    }
    return kNone;
  }

  std::optional<Tag> takeTag() {
    if (!skipToTag()) return std::nullopt;
    skip(1);
    const auto end = findUnquoted("<>");
    if (end == kNone || end == 0 || rest_[end] == '<') return std::nullopt;
    Tag tag{rest_.substr(0, end), rest_[end - 1] == '/'};
    if (tag.isEmpty) tag.name.remove_suffix(1);
    tag.name = tag.name.substr(0, tag.name.find_first_of(kSpace));
    skip(end + 1);
    return tag;
  }

  std::optional<Value> element(const Tag& tag, int nesting) {
    if (!budget_.spend(0)) return std::nullopt;
    if (tag.name == "dict") return dictionary(tag, nesting + 1);
    if (tag.name == "array") return array(tag, nesting + 1);
    const auto content = text(tag);
    return content ? scalarFromXML(tag.name, *content) : std::nullopt;
  }

  std::optional<Value> array(const Tag& start, int nesting) {
    Value::Array items;
    if (start.isEmpty) return Value(std::move(items));
    if (nesting > kMaxPropertyListNesting) return std::nullopt;
    for (;;) {
      const auto tag = takeTag();
      if (tag && tag->name == "/array") return Value(std::move(items));
      auto item = tag ? element(*tag, nesting) : std::nullopt;
      if (!item) return std::nullopt;
      items.push_back(*std::move(item));
    }
  }

  std::optional<Value> dictionary(const Tag& start, int nesting) {
    Value::Dictionary items;
    if (start.isEmpty) return Value(std::move(items));
    if (nesting > kMaxPropertyListNesting) return std::nullopt;
    for (;;) {
      auto tag = takeTag();
      if (tag && tag->name == "/dict") return Value(std::move(items));
      if (!tag || tag->name != "key" || !budget_.spend(0)) return std::nullopt;
      auto key = text(*tag);
      tag = key ? takeTag() : std::nullopt;
      auto item = tag ? element(*tag, nesting) : std::nullopt;
      if (!item) return std::nullopt;
      items.insert_or_assign(*std::move(key), *std::move(item));
    }
  }

  // The content of an element without children, its end tag taken too.
  std::optional<std::string> text(const Tag& start) {
    std::string content;
    if (start.isEmpty) return content;
    for (;;) {
      const auto end = rest_.find('<');
      if (end == kNone || !appendUnescaped(content, rest_.substr(0, end))) return std::nullopt;
      skip(end);
      if (rest_.starts_with("</")) {
        const auto tag = takeTag();
        const bool matches = tag && !tag->isEmpty && tag->name.substr(1) == start.name;
        return matches && budget_.spend(content.size()) ? std::optional(content) : std::nullopt;
      }
      if (!skipInText(content)) return std::nullopt;
    }
  }

  // A comment, or a passage that is not escaped.
  bool skipInText(std::string& content) {
    if (rest_.starts_with("<!--")) return skipPast("-->", 4);
    constexpr std::string_view kVerbatim = "<![CDATA[";
    const auto end = rest_.find("]]>");
    if (!rest_.starts_with(kVerbatim) || end == kNone) return false;
    content += rest_.substr(kVerbatim.size(), end - kVerbatim.size());
    skip(end + 3);
    return true;
  }

  std::string_view rest_;
  PropertyListBudget budget_;
};

} // namespace

std::optional<Value> valueFromXMLPropertyList(std::string_view xml) {
  return Reader(xml).read();
}

} // namespace wrenvale::platform
