#include "tools/wrenvale/JSONSchema.h"

#include <algorithm>
#include <cmath>
#include <regex>

#include "tools/wrenvale/JSONPlaces.h"

namespace wrenvale::kit {

namespace {

constexpr std::string_view kKeywords[] = {"$defs",
                                          "$ref",
                                          "$schema",
                                          "additionalProperties",
                                          "anyOf",
                                          "const",
                                          "dependentRequired",
                                          "description",
                                          "items",
                                          "minLength",
                                          "minimum",
                                          "pattern",
                                          "properties",
                                          "required",
                                          "title",
                                          "type"};

bool isWhole(const Value& value) {
  const auto* real = value.real();
  return value.integer() || (real && std::trunc(*real) == *real);
}

struct Type {
  std::string_view name;
  const char* noun;
  bool (*fits)(const Value& value);
};

constexpr Type kTypes[] = {
    {"array", "an array", [](const Value& value) { return value.isArray(); }},
    {"boolean", "true or false", [](const Value& value) { return value.boolean() != nullptr; }},
    {"integer", "a whole number", isWhole},
    {"object", "an object", [](const Value& value) { return value.isDictionary(); }},
    {"string", "a text", [](const Value& value) { return value.string() != nullptr; }},
};

const Type* typeNamed(const std::optional<std::string>& name) {
  const auto type = std::ranges::find_if(kTypes, [&](const Type& row) { return row.name == name; });
  return type == std::end(kTypes) ? nullptr : &*type;
}

double numberOf(const Value& value) {
  return value.real() ? *value.real() : static_cast<double>(integerValue(value));
}

std::string inQuotes(std::string_view key) {
  return '"' + std::string(key) + '"';
}

class Validator {
public:
  explicit Validator(const Value& root)
      : root_(root) {}

  void check(const Value& value, const Value& schema, const std::string& pointer) {
    checkKeywords(schema);
    if (const auto reference = stringValue(schema.find("$ref")))
      check(value, definition(*reference), pointer);
    if (!fits(value, schema))
      complain(pointer, subject(pointer) + " must be " + noun(schema, pointer));
    if (value.isArray()) checkItems(value, schema, pointer);
    if (value.isDictionary()) checkMembers(value, schema, pointer);
  }

  Findings take() { return std::move(findings_); }

private:
  void complain(const std::string& pointer, std::string text) {
    findings_.push_back({pointer, Finding::Weight::Error, std::move(text)});
  }

  void checkKeywords(const Value& schema) {
    for (std::size_t i = 0; i < schema.size(); ++i)
      if (std::ranges::find(kKeywords, schema.keyAt(i)) == std::end(kKeywords))
        complain("", "this program does not know " + inQuotes(schema.keyAt(i)) + " in the schema");
  }

  Value definition(std::string_view reference) const {
    constexpr std::string_view prefix = "#/$defs/";
    return root_.find("$defs").find(reference.substr(std::min(prefix.size(), reference.size())));
  }

  // Whether the value by itself, without its children, is what the schema wants.
  bool fits(const Value& value, const Value& schema) const {
    const auto* type = typeNamed(stringValue(schema.find("type")));
    if (type && !type->fits(value)) return false;
    if (schema.contains("const") && value != schema.find("const")) return false;
    if (isWhole(value) && schema.contains("minimum") &&
        numberOf(value) < numberOf(schema.find("minimum")))
      return false;
    if (const auto* text = value.string(); text && !fitsText(*text, schema)) return false;
    return !schema.contains("anyOf") || fitsAnyOf(value, schema.find("anyOf"));
  }

  static bool fitsText(const std::string& text, const Value& schema) {
    if (static_cast<std::int64_t>(text.size()) < integerValue(schema.find("minLength")))
      return false;
    const auto pattern = stringValue(schema.find("pattern"));
    return !pattern || std::regex_search(text, std::regex(*pattern));
  }

  bool fitsAnyOf(const Value& value, const Value& alternatives) const {
    for (std::size_t i = 0; i < alternatives.size(); ++i) {
      Validator alternative(root_);
      alternative.check(value, alternatives.at(i), "");
      if (alternative.findings_.empty()) return true;
    }
    return false;
  }

  void checkItems(const Value& array, const Value& schema, const std::string& pointer) {
    const auto items = schema.find("items");
    for (std::size_t i = 0; i < array.size(); ++i)
      check(array.at(i), items, childOf(pointer, i));
  }

  void checkMembers(const Value& object, const Value& schema, const std::string& pointer) {
    const auto properties = schema.find("properties");
    const bool closed = schema.contains("additionalProperties");
    for (std::size_t i = 0; i < object.size(); ++i) {
      const auto key = object.keyAt(i);
      const auto child = childOf(pointer, key);
      if (properties.contains(key))
        check(object.at(i), properties.find(key), child);
      else if (closed)
        complain(child, "there is no key " + inQuotes(key) + " here");
    }
    require(object, schema.find("required"), pointer, "");
    const auto dependent = schema.find("dependentRequired");
    for (std::size_t i = 0; i < dependent.size(); ++i)
      if (object.contains(dependent.keyAt(i)))
        require(object, dependent.at(i), childOf(pointer, dependent.keyAt(i)),
                inQuotes(dependent.keyAt(i)) + " does nothing: ");
  }

  void require(const Value& object, const Value& keys, const std::string& pointer,
               const std::string& prefix) {
    for (std::size_t i = 0; i < keys.size(); ++i)
      if (const auto key = stringValue(keys.at(i)).value_or(""); !object.contains(key))
        complain(pointer, prefix + inQuotes(key) + " is missing");
  }

  static std::string subject(const std::string& pointer) {
    if (pointer.empty()) return "the document";
    const auto last = pointer.substr(pointer.rfind('/') + 1);
    const bool isIndex = std::ranges::all_of(last, [](char c) { return c >= '0' && c <= '9'; });
    return isIndex ? "this" : inQuotes(last);
  }

  static std::string noun(const Value& schema, const std::string& pointer) {
    const auto title = stringValue(schema.find("title"));
    const auto* type = typeNamed(stringValue(schema.find("type")));
    if (title && !pointer.empty()) return *title;
    return type ? type->noun : "something else";
  }

  const Value& root_;
  Findings findings_;
};

} // namespace

Findings findingsBySchema(const Value& document, const Value& schema) {
  Validator validator(schema);
  validator.check(document, schema, "");
  return validator.take();
}

} // namespace wrenvale::kit
