#include "tools/wrenvale/check/JSONPlaces.h"

#include <algorithm>
#include <unordered_set>

#include "desktop/net/json/JSONReader.h"

namespace wrenvale::kit {

namespace {

void appendTo(std::string& pointer, std::string_view key) {
  pointer += '/';
  for (const char c : key) {
    if (c == '~')
      pointer += "~0";
    else if (c == '/')
      pointer += "~1";
    else
      pointer += c;
  }
}

void appendTo(std::string& pointer, std::size_t index) {
  pointer.append("/").append(std::to_string(index));
}

// Goes over the text once. What it may rely on: the text is a document, and not nested too deep.
class Walk {
public:
  using Offsets = std::unordered_map<std::string, std::size_t>;

  // Sets the offsets of the pointers that are there already.
  Walk(std::string_view text, Offsets& offsets, std::vector<std::size_t>& repeated)
      : text_(text)
      , offsets_(offsets)
      , repeated_(repeated) {}

  void document(std::size_t begin) {
    position_ = begin;
    next();
    note(position_);
    value();
  }

private:
  // The value whose pointer is in `pointer_`.
  void value() {
    const char first = next();
    if (first == '{')
      dictionary();
    else if (first == '[')
      array();
    else if (first == '"')
      quoted();
    else
      position_ = std::min(text_.find_first_of(",]} \t\r\n", position_), text_.size());
  }

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

  void array() {
    const auto size = pointer_.size();
    for (std::size_t index = 0; goesOn(']'); ++index) {
      appendTo(pointer_, index);
      note(position_);
      value();
      pointer_.resize(size);
    }
  }

  void dictionary() {
    const auto size = pointer_.size();
    std::unordered_set<std::string> keys;
    while (goesOn('}')) {
      const auto offset = position_;
      auto name = key();
      appendTo(pointer_, name);
      note(offset);
      if (!keys.insert(std::move(name)).second) repeated_.push_back(offset);
      next(); // the colon
      ++position_;
      value();
      pointer_.resize(size);
    }
  }

  void note(std::size_t offset) {
    if (const auto found = offsets_.find(pointer_); found != offsets_.end()) found->second = offset;
  }

  std::string_view quoted() {
    const auto begin = position_++;
    while (text_[position_] != '"')
      position_ += text_[position_] == '\\' ? 2 : 1;
    return text_.substr(begin, ++position_ - begin);
  }

  std::string key() {
    const auto text = quoted();
    if (text.find('\\') == std::string_view::npos)
      return std::string(text.substr(1, text.size() - 2));
    const auto read = platform::JSONReader().JSONObjectWithData("[" + std::string(text) + "]");
    const auto key = read.object.value_or(Value()).at(0);
    return key.string() ? *key.string() : std::string();
  }

  const std::string_view text_;
  std::size_t position_ = 0;
  std::string pointer_;
  Offsets& offsets_;
  std::vector<std::size_t>& repeated_;
};

} // namespace

std::string childOf(const std::string& pointer, std::string_view key) {
  std::string result = pointer;
  appendTo(result, key);
  return result;
}

std::string childOf(const std::string& pointer, std::size_t index) {
  std::string result = pointer;
  appendTo(result, index);
  return result;
}

JSONPlaces::JSONPlaces(std::string_view text, const std::vector<std::string>& pointers) {
  for (const auto& pointer : pointers)
    offsets_.emplace(pointer, 0);
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  Walk(text, offsets_, repeated_)
      .document(text.starts_with(byteOrderMark) ? byteOrderMark.size() : 0);
}

std::size_t JSONPlaces::offsetOf(const std::string& pointer) const {
  const auto found = offsets_.find(pointer);
  return found == offsets_.end() ? 0 : found->second;
}

} // namespace wrenvale::kit
