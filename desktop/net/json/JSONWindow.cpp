#include "desktop/net/json/JSONWindow.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <optional>
#include <vector>

namespace wrenvale::platform {

namespace {

using simdjson::dom::element;
using simdjson::dom::element_type;

std::optional<std::string_view> viewOf(element element) {
  if (!element.is_string()) return std::nullopt;
  return element.get_string().value_unsafe();
}

struct Child {
  std::string_view key;
  element value;
};

// Keeps the first few in place and allocates only for more: nearly all arrays and objects of real
// documents are small.
template <class Item, std::size_t kInPlace>
class Items {
public:
  void reserve(std::size_t count) {
    if (count > kInPlace) more_.reserve(count - kInPlace);
  }

  void push_back(const Item& item) {
    if (size_ < kInPlace)
      few_[size_] = item;
    else
      more_.push_back(item);
    ++size_;
  }

  std::size_t size() const { return size_; }
  const Item& operator[](std::size_t i) const {
    return i < kInPlace ? few_[i] : more_[i - kInPlace];
  }

private:
  std::size_t size_ = 0;
  std::array<Item, kInPlace> few_;
  std::vector<Item> more_;
};

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
  std::optional<std::string_view> stringAt(std::size_t index) const override {
    return viewOf(children_[index]);
  }
  std::string_view keyAt(std::size_t) const override { return {}; }
  std::optional<std::size_t> indexOf(std::string_view) const override { return std::nullopt; }

private:
  const JSONDocument document_;
  Items<element, 8> children_;
};

// An object with more children than this is sorted.
constexpr std::size_t kFew = 20;

// The children in the order of the text.
class FewChildren {
public:
  // Of several children with one key, the one that stands last in the text counts.
  void insert(std::string_view key, element value) {
    const auto mark = markOf(key);
    const auto present = marks_ & mark ? indexOf(key) : std::nullopt;
    marks_ |= mark;
    children_[present ? *present : size_++] = {key, value};
  }
  void complete() {}

  std::size_t size() const { return size_; }
  const Child& operator[](std::size_t index) const { return children_[index]; }

  std::optional<std::size_t> indexOf(std::string_view key) const {
    for (std::size_t i = 0; i < size_; ++i)
      if (children_[i].key == key) return i;
    return std::nullopt;
  }

private:
  // One of 64 bits, the same for equal keys: a key whose bit is not set yet needs no search.
  static std::uint64_t markOf(std::string_view key) {
    if (key.empty()) return 1;
    return std::uint64_t{1} << ((key.size() * 5 + key.front() * 3 + key.back()) & 63);
  }

  std::uint64_t marks_ = 0;
  std::size_t size_ = 0;
  std::array<Child, kFew> children_;
};

// The children in the order of their keys.
class ManyChildren {
public:
  void insert(std::string_view key, element value) { children_.push_back({key, value}); }

  // Of several children with one key, keeps the one that stands last in the text.
  void complete() {
    const auto sameKey = [](const Child& a, const Child& b) { return a.key == b.key; };
    std::ranges::stable_sort(children_, std::less<>(), &Child::key);
    const auto kept = std::unique(children_.rbegin(), children_.rend(), sameKey);
    children_.erase(children_.begin(), kept.base());
  }

  std::size_t size() const { return children_.size(); }
  const Child& operator[](std::size_t index) const { return children_[index]; }

  std::optional<std::size_t> indexOf(std::string_view key) const {
    const auto child = std::ranges::lower_bound(children_, key, std::less<>(), &Child::key);
    if (child == children_.end() || child->key != key) return std::nullopt;
    return child - children_.begin();
  }

private:
  std::vector<Child> children_;
};

template <class Children>
class DictionaryWindow final : public Value::Collection {
public:
  DictionaryWindow(JSONDocument document, simdjson::dom::object object)
      : document_(std::move(document)) {
    for (const auto child : object)
      children_.insert(child.key, child.value);
    children_.complete();
  }

  bool isDictionary() const override { return true; }
  std::size_t size() const override { return children_.size(); }
  Value at(std::size_t index) const override { return valueOf(document_, children_[index].value); }
  std::optional<std::string_view> stringAt(std::size_t index) const override {
    return viewOf(children_[index].value);
  }
  std::string_view keyAt(std::size_t index) const override { return children_[index].key; }
  std::optional<std::size_t> indexOf(std::string_view key) const override {
    return children_.indexOf(key);
  }

private:
  const JSONDocument document_;
  Children children_;
};

using Shared = std::shared_ptr<const Value::Collection>;

Shared windowOf(const JSONDocument& document, simdjson::dom::object object) {
  if (object.size() <= kFew)
    return std::make_shared<DictionaryWindow<FewChildren>>(document, object);
  return std::make_shared<DictionaryWindow<ManyChildren>>(document, object);
}

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
  if (element.is_array())
    return Shared(std::make_shared<ArrayWindow>(document, element.get_array().value_unsafe()));
  if (element.is_object()) return windowOf(document, element.get_object().value_unsafe());
  return scalarOf(element);
}

} // namespace wrenvale::platform
