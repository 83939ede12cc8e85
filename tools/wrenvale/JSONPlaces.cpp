#include "tools/wrenvale/JSONPlaces.h"

#include <algorithm>

#include "platform/net/JSONReader.h"

namespace wrenvale::kit {

namespace {

// Goes over the text once. What it may rely on: the text is a document, and not nested too deep.
class Walk {
public:
  Walk(std::string_view text, std::map<std::string, std::size_t>& offsets,
       std::vector<std::string>& repeated)
      : text_(text)
      , offsets_(offsets)
      , repeated_(repeated) {}

  void value(const std::string& pointer) {
    const char first = next();
    offsets_.try_emplace(pointer, position_);
    if (first == '{')
      dictionary(pointer);
    else if (first == '[')
      array(pointer);
    else if (first == '"')
      string();
    else
      position_ = std::min(text_.find_first_of(",]} \t\r\n", position_), text_.size());
  }

private:
  // The next character that is no white space.
  char next() {
    position_ = std::min(text_.find_first_not_of(" \t\r\n", position_), text_.size());
    return position_ < text_.size() ? text_[position_] : '\0';
  }

  // Goes past the opening bracket, a comma or the closing bracket; true when a child follows.
  bool goesOn(char closing) {
    const bool begins = text_[position_] == '{' || text_[position_] == '[';
    if (!begins && next() != ',') return ++position_, false;
    ++position_;
    if (next() != closing) return true;
    return ++position_, false;
  }

  void array(const std::string& pointer) {
    for (std::size_t index = 0; goesOn(']'); ++index)
      value(childOf(pointer, index));
  }

  void dictionary(const std::string& pointer) {
    while (goesOn('}')) {
      const auto offset = position_;
      const auto child = childOf(pointer, string());
      if (!offsets_.insert_or_assign(child, offset).second) repeated_.push_back(child);
      next(); // the colon
      ++position_;
      value(child);
    }
  }

  std::string string() {
    const auto begin = position_++;
    while (text_[position_] != '"')
      position_ += text_[position_] == '\\' ? 2 : 1;
    const auto quoted = text_.substr(begin, ++position_ - begin);
    if (quoted.find('\\') == std::string_view::npos)
      return std::string(quoted.substr(1, quoted.size() - 2));
    const auto read = platform::JSONReader().JSONObjectWithData("[" + std::string(quoted) + "]");
    const auto key = read.object.value_or(Value()).at(0);
    return key.string() ? *key.string() : std::string();
  }

  const std::string_view text_;
  std::size_t position_ = 0;
  std::map<std::string, std::size_t>& offsets_;
  std::vector<std::string>& repeated_;
};

} // namespace

std::string childOf(const std::string& pointer, std::string_view key) {
  std::string result = pointer + '/';
  for (const char c : key) {
    if (c == '~')
      result += "~0";
    else if (c == '/')
      result += "~1";
    else
      result += c;
  }
  return result;
}

std::string childOf(const std::string& pointer, std::size_t index) {
  return pointer + '/' + std::to_string(index);
}

JSONPlaces::JSONPlaces(std::string_view text) {
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  const auto skipped = text.starts_with(byteOrderMark) ? byteOrderMark.size() : 0;
  Walk(text.substr(skipped), offsets_, repeated_).value("");
  for (auto& [pointer, offset] : offsets_)
    offset += skipped;
}

std::size_t JSONPlaces::offsetOf(const std::string& pointer) const {
  const auto found = offsets_.find(pointer);
  return found == offsets_.end() ? 0 : found->second;
}

} // namespace wrenvale::kit
