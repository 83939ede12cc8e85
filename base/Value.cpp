#include "base/Value.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

namespace wrenvale {

namespace {

constexpr auto kMax = std::numeric_limits<std::int64_t>::max();
constexpr auto kMin = std::numeric_limits<std::int64_t>::min();

std::optional<std::string_view> viewOf(const Value& value) {
  const auto* string = value.string();
  return string ? std::optional<std::string_view>(*string) : std::nullopt;
}

class ArrayCollection final : public Value::Collection {
public:
  explicit ArrayCollection(Value::Array items)
      : items_(std::move(items)) {}
  bool isDictionary() const override { return false; }
  std::size_t size() const override { return items_.size(); }
  Value at(std::size_t index) const override { return items_[index]; }
  std::optional<std::string_view> stringAt(std::size_t index) const override {
    return viewOf(items_[index]);
  }
  std::string_view keyAt(std::size_t) const override { return {}; }
  std::optional<std::size_t> indexOf(std::string_view) const override { return std::nullopt; }

private:
  const Value::Array items_;
};

class DictionaryCollection final : public Value::Collection {
public:
  explicit DictionaryCollection(Value::Dictionary items)
      : items_(std::move(items)) {
    order_.reserve(items_.size());
    for (const auto& item : items_)
      order_.push_back(&item);
  }
  bool isDictionary() const override { return true; }
  std::size_t size() const override { return order_.size(); }
  Value at(std::size_t index) const override { return order_[index]->second; }
  std::optional<std::string_view> stringAt(std::size_t index) const override {
    return viewOf(order_[index]->second);
  }
  std::string_view keyAt(std::size_t index) const override { return order_[index]->first; }
  std::optional<std::size_t> indexOf(std::string_view key) const override {
    const auto keyOf = [](const Value::Dictionary::value_type* item) -> const std::string& {
      return item->first;
    };
    const auto found = std::ranges::lower_bound(order_, key, std::less<>(), keyOf);
    if (found == order_.end() || (*found)->first != key) return std::nullopt;
    return found - order_.begin();
  }

private:
  const Value::Dictionary items_;
  std::vector<const Value::Dictionary::value_type*> order_;
};

bool isSpace(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}
bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

// Steps over leading white space and one sign; tells whether the sign was a minus.
bool skipSpaceAndSign(std::string_view& text) {
  while (!text.empty() && isSpace(text.front()))
    text.remove_prefix(1);
  if (text.empty() || (text.front() != '-' && text.front() != '+')) return false;
  const bool negative = text.front() == '-';
  text.remove_prefix(1);
  return negative;
}

std::int64_t leadingInteger(std::string_view text) {
  const bool negative = skipSpaceAndSign(text);
  std::int64_t result = 0;
  for (; !text.empty() && isDigit(text.front()); text.remove_prefix(1)) {
    const int digit = text.front() - '0';
    if (__builtin_mul_overflow(result, std::int64_t{10}, &result) ||
        __builtin_sub_overflow(result, std::int64_t{digit}, &result))
      return negative ? kMin : kMax;
  }
  if (negative) return result; // built as a negative number, so that the lowest one fits
  return result == kMin ? kMax : -result;
}

std::int64_t wholePart(double real) {
  if (std::isnan(real)) return 0;
  if (real >= 0x1p63) return kMax;
  if (real < -0x1p63) return kMin;
  return static_cast<std::int64_t>(real);
}

bool beginsTrue(std::string_view text) {
  skipSpaceAndSign(text);
  while (!text.empty() && text.front() == '0')
    text.remove_prefix(1);
  if (text.empty()) return false;
  const char c = text.front();
  return c == 'Y' || c == 'y' || c == 'T' || c == 't' || isDigit(c);
}

bool sameChildren(const Value& a, const Value& b) {
  if (a.isDictionary() != b.isDictionary() || a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (!a.isDictionary()) {
      if (!(a.at(i) == b.at(i))) return false;
    } else {
      const auto index = b.indexOf(a.keyAt(i));
      if (!index || !(a.at(i) == b.at(*index))) return false;
    }
  }
  return true;
}

} // namespace

Value::Collection::~Collection() = default;

Value::Value(Array array)
    : payload_(std::make_shared<const ArrayCollection>(std::move(array))) {}

Value::Value(Dictionary dictionary)
    : payload_(std::make_shared<const DictionaryCollection>(std::move(dictionary))) {}

bool Value::isArray() const {
  const auto* children = collection();
  return children && !children->isDictionary();
}

bool Value::isDictionary() const {
  const auto* children = collection();
  return children && children->isDictionary();
}

const Data* Value::data() const& {
  const auto* shared = std::get_if<std::shared_ptr<const Data>>(&payload_);
  return shared ? shared->get() : nullptr;
}

std::size_t Value::size() const {
  const auto* children = collection();
  return children ? children->size() : 0;
}

Value Value::at(std::size_t index) const {
  const auto* children = collection();
  return children && index < children->size() ? children->at(index) : Value();
}

std::string_view Value::keyAt(std::size_t index) const {
  const auto* children = collection();
  return children && index < children->size() ? children->keyAt(index) : std::string_view();
}

std::optional<std::string_view> Value::stringAt(std::size_t index) const {
  const auto* children = collection();
  return children && index < children->size() ? children->stringAt(index) : std::nullopt;
}

std::optional<std::size_t> Value::indexOf(std::string_view key) const {
  const auto* children = collection();
  return children ? children->indexOf(key) : std::nullopt;
}

Value Value::find(std::string_view key) const {
  const auto index = indexOf(key);
  return index ? collection()->at(*index) : Value();
}

Value::Array Value::mutableArray() const {
  Array copy;
  if (!isArray()) return copy;
  copy.reserve(size());
  for (std::size_t i = 0; i < size(); ++i)
    copy.push_back(at(i));
  return copy;
}

Value::Dictionary Value::mutableDictionary() const {
  Dictionary copy;
  if (!isDictionary()) return copy;
  for (std::size_t i = 0; i < size(); ++i)
    copy.insert_or_assign(std::string(keyAt(i)), at(i));
  return copy;
}

bool operator==(const Value& a, const Value& b) {
  if (a.collection() && b.collection()) return sameChildren(a, b);
  if (a.data() && b.data()) return *a.data() == *b.data();
  return a.payload_ == b.payload_;
}

std::int64_t integerValue(const Value& value) {
  if (const auto* integer = value.integer()) return *integer;
  if (const auto* real = value.real()) return wholePart(*real);
  if (const auto* boolean = value.boolean()) return *boolean ? 1 : 0;
  if (const auto* string = value.string()) return leadingInteger(*string);
  return 0;
}

bool truthValue(const Value& value) {
  if (const auto* real = value.real()) return *real != 0;
  if (const auto* string = value.string()) return beginsTrue(*string);
  return integerValue(value) != 0;
}

std::optional<std::string> stringValue(const Value& value) {
  const auto* string = value.string();
  return string ? std::optional(*string) : std::nullopt;
}

std::string formatted(const std::optional<std::string>& text) {
  return text.value_or("(null)");
}

} // namespace wrenvale
