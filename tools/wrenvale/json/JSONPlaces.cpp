#include "tools/wrenvale/json/JSONPlaces.h"

#include <unordered_set>

#include "tools/wrenvale/json/JSONEvents.h"

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

class Places final : public JSONEvents {
public:
  using Offsets = std::unordered_map<std::string, std::size_t>;

  // Sets the offsets of the pointers that are there already.
  Places(Offsets& offsets, std::vector<std::size_t>& repeated)
      : offsets_(offsets)
      , repeated_(repeated) {}

private:
  struct Container {
    bool isDictionary;
    std::size_t pointerSize;
    std::size_t children = 0;
    std::unordered_set<std::string> keys{};
  };

  void scalar(Value) override { reachValue(); }
  void opens(bool isDictionary) override {
    reachValue();
    open_.push_back({.isDictionary = isDictionary, .pointerSize = pointer_.size()});
  }
  void closes() override { open_.pop_back(); }

  void named(std::string key) override {
    auto& dictionary = open_.back();
    pointer_.resize(dictionary.pointerSize);
    appendTo(pointer_, key);
    note();
    if (!dictionary.keys.insert(std::move(key)).second) repeated_.push_back(begin());
  }

  // A dictionary's values are noted by their keys.
  void reachValue() {
    if (open_.empty()) return note();
    auto& parent = open_.back();
    if (parent.isDictionary) return;
    pointer_.resize(parent.pointerSize);
    appendTo(pointer_, parent.children++);
    note();
  }

  void note() {
    if (const auto found = offsets_.find(pointer_); found != offsets_.end())
      found->second = begin();
  }

  std::string pointer_;
  std::vector<Container> open_;
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
  Places(offsets_, repeated_).read(text);
}

std::size_t JSONPlaces::offsetOf(const std::string& pointer) const {
  const auto found = offsets_.find(pointer);
  return found == offsets_.end() ? 0 : found->second;
}

} // namespace wrenvale::kit
