#include "tools/wrenvale/check/JSONSchema.h"

#include <algorithm>

#include "tools/wrenvale/json/JSONPlaces.h"

namespace wrenvale::kit {

namespace {

std::string inQuotes(std::string_view key) {
  return '"' + std::string(key) + '"';
}

// The way to a value; its pointer is put together only when something is wrong there.
struct Place {
  std::string pointer() const {
    if (!parent) return "";
    return key ? childOf(parent->pointer(), *key) : childOf(parent->pointer(), index);
  }

  std::string subject() const {
    if (!parent) return "the document";
    return key ? inQuotes(*key) : "this";
  }

  const Place* parent = nullptr; ///< null for the whole document
  std::optional<std::string_view> key{};
  std::size_t index = 0; ///< when there is no key
};

class Validator {
public:
  void check(const Value& value, const SchemaNode& schema, const Place& place) {
    if (schema.reference) check(value, *schema.reference, place);
    if (!fits(value, schema)) complain(place, place.subject() + " must be " + noun(schema, place));
    if (value.isArray() && schema.items)
      for (std::size_t i = 0; i < value.size(); ++i)
        check(value.at(i), *schema.items, {.parent = &place, .index = i});
    if (value.isDictionary()) checkMembers(value, schema, place);
  }

  Findings take() { return std::move(findings_); }

private:
  void complain(const Place& place, std::string text) {
    findings_.push_back({place.pointer(), Finding::Weight::Error, std::move(text)});
  }

  // Whether the value by itself, without its children, is what the schema wants.
  static bool fits(const Value& value, const SchemaNode& schema) {
    if (schema.type && !schema.type->fits(value)) return false;
    if (schema.constant && value != *schema.constant) return false;
    if (schema.minimum && isWhole(value) && numberOf(value) < *schema.minimum) return false;
    if (const auto* text = value.string(); text && !fitsText(*text, schema)) return false;
    return schema.anyOf.empty() || std::ranges::any_of(schema.anyOf, [&](const auto& alternative) {
             Validator validator;
             validator.check(value, alternative, {});
             return validator.findings_.empty();
           });
  }

  static bool fitsText(const std::string& text, const SchemaNode& schema) {
    return text.size() >= schema.minLength &&
           (!schema.pattern || RE2::PartialMatch(text, *schema.pattern));
  }

  void checkMembers(const Value& object, const SchemaNode& schema, const Place& place) {
    for (std::size_t i = 0; i < object.size(); ++i) {
      const auto key = object.keyAt(i);
      const Place child{.parent = &place, .key = key};
      if (const auto property = schema.properties.find(key); property != schema.properties.end())
        check(object.at(i), *property->second, child);
      else if (schema.isClosed)
        complain(child, "there is no key " + inQuotes(key) + " here");
    }
    require(object, schema.required, place, "");
    for (const auto& [key, others] : schema.dependentRequired)
      if (object.contains(key))
        require(object, others, {.parent = &place, .key = key}, inQuotes(key) + " does nothing: ");
  }

  void require(const Value& object, const std::vector<std::string>& keys, const Place& place,
               const std::string& prefix) {
    for (const auto& key : keys)
      if (!object.contains(key)) complain(place, prefix + inQuotes(key) + " is missing");
  }

  static std::string noun(const SchemaNode& schema, const Place& place) {
    if (!schema.title.empty() && place.parent) return schema.title;
    return schema.type ? schema.type->noun : "something else";
  }

  Findings findings_;
};

} // namespace

JSONSchema::JSONSchema(const Value& schema)
    : root_(schemaNode(schema, unknown_)) {}

Findings JSONSchema::findingsIn(const Value& document) const {
  Validator validator;
  validator.check(document, root_, {});
  auto findings = validator.take();
  findings.insert(findings.begin(), unknown_.begin(), unknown_.end());
  return findings;
}

} // namespace wrenvale::kit
