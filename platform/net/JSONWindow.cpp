#include "platform/net/JSONWindow.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace wrenvale::platform {

namespace {

using simdjson::dom::element;
using simdjson::dom::element_type;

class ArrayWindow final : public Value::Collection {
public:
  ArrayWindow(JSONDocument document, simdjson::dom::array array)
      : document_(std::move(document)) {
    children_.reserve(array.size());
    for (const auto child : array)
      children_.push_back(child);
  }

  bool isDictionary() const override { return false; }
  std::size_t size() const override { return children_.size(); }
  Value at(std::size_t index) const override { return valueOf(document_, children_[index]); }
  std::string_view keyAt(std::size_t) const override { return {}; }
  Value find(std::string_view) const override { return {}; }
  bool contains(std::string_view) const override { return false; }

private:
  const JSONDocument document_;
  std::vector<element> children_;
};

// In the order of the keys, as a dictionary in memory is.
class DictionaryWindow final : public Value::Collection {
public:
  DictionaryWindow(JSONDocument document, simdjson::dom::object object)
      : document_(std::move(document)) {
    children_.reserve(object.size());
    for (const auto child : object)
      children_.push_back({child.key, child.value});
    std::stable_sort(children_.begin(), children_.end(),
                     [](const Child& a, const Child& b) { return a.key < b.key; });
    dropAllButLast();
  }

  bool isDictionary() const override { return true; }
  std::size_t size() const override { return children_.size(); }
  Value at(std::size_t index) const override { return valueOf(document_, children_[index].value); }
  std::string_view keyAt(std::size_t index) const override { return children_[index].key; }

  Value find(std::string_view key) const override {
    const auto* child = childUnder(key);
    return child ? valueOf(document_, child->value) : Value();
  }

  bool contains(std::string_view key) const override { return childUnder(key) != nullptr; }

private:
  struct Child {
    std::string_view key;
    element value;
  };

  // Of several children with one key, keeps the one that stands last in the text.
  void dropAllButLast() {
    const auto sameKey = [](const Child& a, const Child& b) { return a.key == b.key; };
    const auto kept = std::unique(children_.rbegin(), children_.rend(), sameKey);
    children_.erase(children_.begin(), kept.base());
  }

  const Child* childUnder(std::string_view key) const {
    const auto child =
        std::lower_bound(children_.begin(), children_.end(), key,
                         [](const Child& a, std::string_view b) { return a.key < b; });
    return child != children_.end() && child->key == key ? &*child : nullptr;
  }

  const JSONDocument document_;
  std::vector<Child> children_;
};

// Each branch reads the element as the type that it was just found to have.
Value scalarOf(element element) {
  switch (element.type()) {
  case element_type::INT64:
    return element.get_int64().value_unsafe();
  case element_type::UINT64:
    return static_cast<double>(element.get_uint64().value_unsafe());
  case element_type::DOUBLE:
    return element.get_double().value_unsafe();
  case element_type::BOOL:
    return element.get_bool().value_unsafe();
  case element_type::STRING:
    return element.get_string().value_unsafe();
  default:
    return {};
  }
}

} // namespace

Value valueOf(const JSONDocument& document, element element) {
  using Shared = std::shared_ptr<const Value::Collection>;
  if (element.is_array())
    return Shared(std::make_shared<ArrayWindow>(document, element.get_array().value_unsafe()));
  if (element.is_object())
    return Shared(
        std::make_shared<DictionaryWindow>(document, element.get_object().value_unsafe()));
  return scalarOf(element);
}

} // namespace wrenvale::platform
