// A value of the framework's outside world: JSON documents, property lists, user defaults.
//
// A Value is immutable and cheap to copy: arrays and dictionaries are shared, never cloned. It may
// be read on any number of threads at once. Nothing here throws on a value of another type than
// the caller hoped for; the accessors answer with "nothing" instead.

#ifndef WRENVALE_VALUE_H
#define WRENVALE_VALUE_H

#include <chrono>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include <wrenvale/Export.h>

namespace wrenvale {

/// A moment in UTC, in microseconds since 1970-01-01T00:00:00Z.
using Date = std::chrono::sys_time<std::chrono::microseconds>;

/// Uninterpreted bytes (the `data` type of a property list).
using Data = std::vector<std::byte>;

/// Null, boolean, 64-bit integer, real, string (UTF-8), date, data, array or dictionary.
class WRENVALE_EXPORT Value {
public:
  using Array = std::vector<Value>;
  using Dictionary = std::map<std::string, Value, std::less<>>;

  /// The children of an array or a dictionary, in memory or as a window onto a parsed document.
  /// Implementations are immutable and safe to read from every thread.
  class WRENVALE_EXPORT Collection {
  public:
    Collection() = default;
    Collection(const Collection&) = delete;
    Collection& operator=(const Collection&) = delete;
    virtual ~Collection();

    virtual bool isDictionary() const = 0;
    virtual std::size_t size() const = 0;
    /// The child at `index`, which is below size().
    virtual Value at(std::size_t index) const = 0;
    /// The child at `index` without a copy of its text, when it is a string. Lives as long as this
    /// collection, or one that contains it.
    virtual std::optional<std::string_view> stringAt(std::size_t index) const = 0;
    /// The key of the child at `index`; empty in an array. Lives as long as the collection.
    virtual std::string_view keyAt(std::size_t index) const = 0;
    /// Where the child under `key` is; nothing when there is none, as in an array.
    virtual std::optional<std::size_t> indexOf(std::string_view key) const = 0;
  };

  Value() = default;
  Value(std::same_as<bool> auto boolean)
      : payload_(boolean) {}
  template <std::integral Integer>
  requires(!std::same_as<Integer, bool>) Value(Integer integer)
      : payload_(static_cast<std::int64_t>(integer)) {}
  Value(double real)
      : payload_(real) {}
  Value(std::string string)
      : payload_(std::move(string)) {}
  Value(std::string_view string)
      : payload_(std::string(string)) {}
  Value(const char* string)
      : payload_(std::string(string)) {}
  Value(Date date)
      : payload_(date) {}
  Value(Data data)
      : payload_(std::make_shared<const Data>(std::move(data))) {}
  Value(Array array);
  Value(Dictionary dictionary);
  Value(std::shared_ptr<const Collection> collection)
      : payload_(std::move(collection)) {}

  bool isNull() const { return std::holds_alternative<std::monostate>(payload_); }
  bool isArray() const;
  bool isDictionary() const;

  /// The payload when the value is of that very type, else null. The pointer lives as long as this
  /// Value, so a temporary has none to give.
  const bool* boolean() const& { return std::get_if<bool>(&payload_); }
  const std::int64_t* integer() const& { return std::get_if<std::int64_t>(&payload_); }
  const double* real() const& { return std::get_if<double>(&payload_); }
  const std::string* string() const& { return std::get_if<std::string>(&payload_); }
  const Date* date() const& { return std::get_if<Date>(&payload_); }
  const Data* data() const&;
  const bool* boolean() const&& = delete;
  const std::int64_t* integer() const&& = delete;
  const double* real() const&& = delete;
  const std::string* string() const&& = delete;
  const Date* date() const&& = delete;
  const Data* data() const&& = delete;

  /// Number of children; 0 for anything but an array or a dictionary.
  std::size_t size() const;
  /// The child at `index` in order; null when out of range.
  Value at(std::size_t index) const;
  /// The same, when that child is a string, without a copy of its text. Lives as long as this
  /// collection, or one that contains it.
  std::optional<std::string_view> stringAt(std::size_t index) const;
  /// The key of the dictionary's child at `index`; empty when there is none. Lives as long as the
  /// dictionary.
  std::string_view keyAt(std::size_t index) const;
  /// Where the dictionary's child under `key` is; nothing when there is none or this is no
  /// dictionary.
  std::optional<std::size_t> indexOf(std::string_view key) const;
  /// The dictionary's child under `key`; null when there is none or this is no dictionary.
  Value find(std::string_view key) const;
  /// Whether the dictionary has `key`, be its value null or not.
  bool contains(std::string_view key) const { return indexOf(key).has_value(); }

  /// Copies of the children that the caller may change; empty for a value of another type.
  Array mutableArray() const;
  Dictionary mutableDictionary() const;

  /// Same type and same content; collections are compared child by child.
  WRENVALE_EXPORT friend bool operator==(const Value& a, const Value& b);

private:
  const Collection* collection() const {
    const auto* shared = std::get_if<std::shared_ptr<const Collection>>(&payload_);
    return shared ? shared->get() : nullptr;
  }

  std::variant<std::monostate, bool, std::int64_t, double, std::string, Date,
               std::shared_ptr<const Data>, std::shared_ptr<const Collection>>
      payload_;
};

} // namespace wrenvale

#endif
