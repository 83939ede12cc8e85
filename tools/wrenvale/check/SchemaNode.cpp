#include "tools/wrenvale/check/SchemaNode.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace wrenvale::kit {

namespace {

constexpr SchemaType kTypes[] = {
    {"array", "an array", [](const Value& value) { return value.isArray(); }},
    {"boolean", "true or false", [](const Value& value) { return value.boolean() != nullptr; }},
    {"integer", "a whole number", isWhole},
    {"object", "an object", [](const Value& value) { return value.isDictionary(); }},
    {"string", "a text", [](const Value& value) { return value.string() != nullptr; }},
};

std::string textOf(const Value& value) {
  return stringValue(value).value_or("");
}

std::vector<std::string> textsOf(const Value& array) {
  std::vector<std::string> texts;
  for (std::size_t i = 0; i < array.size(); ++i)
    texts.push_back(textOf(array.at(i)));
  return texts;
}

class Reader {
public:
  Reader(SchemaNode& root, Findings& unknown)
      : root_(root)
      , unknown_(unknown) {}

  void read(const Value& schema, SchemaNode& node) {
    // First the definitions, which the references need.
    readChildren(schema.find("$defs"), node.definitions);
    for (std::size_t i = 0; i < schema.size(); ++i) {
      const auto keyword = std::ranges::find(kKeywords, schema.keyAt(i), &Keyword::name);
      if (keyword == std::end(kKeywords))
        complain(schema.keyAt(i));
      else if (keyword->read)
        keyword->read(*this, node, schema.at(i));
    }
  }

private:
  struct Keyword {
    std::string_view name;
    void (*read)(Reader& reader, SchemaNode& node, const Value& value); ///< null: says nothing
  };
  static const Keyword kKeywords[16];

  void complain(std::string_view what) {
    unknown_.push_back({"", Finding::Weight::Error,
                        "this program does not know \"" + std::string(what) + "\" in the schema"});
  }

  void readChildren(const Value& schemas, SchemaNode::Children& children) {
    for (std::size_t i = 0; i < schemas.size(); ++i) // all of them are there for a reference
      children[std::string(schemas.keyAt(i))] = std::make_unique<SchemaNode>();
    for (std::size_t i = 0; i < schemas.size(); ++i)
      read(schemas.at(i), *children.find(schemas.keyAt(i))->second);
  }

  void readType(SchemaNode& node, const std::string& name) {
    const auto type = std::ranges::find(kTypes, name, &SchemaType::name);
    if (type == std::end(kTypes)) return complain(name);
    node.type = &*type;
  }

  void readReference(SchemaNode& node, const std::string& reference) {
    constexpr std::string_view prefix = "#/$defs/";
    const auto found = reference.starts_with(prefix)
                           ? root_.definitions.find(reference.substr(prefix.size()))
                           : root_.definitions.end();
    if (found == root_.definitions.end()) return complain(reference);
    node.reference = found->second.get();
  }

  void readPattern(SchemaNode& node, const std::string& pattern) {
    node.pattern = std::make_unique<RE2>(pattern, RE2::Quiet);
    if (!node.pattern->ok()) complain(pattern);
  }

  SchemaNode& root_;
  Findings& unknown_;
};

const Reader::Keyword Reader::kKeywords[] = {
    {"$defs", nullptr}, // read already
    {"$schema", nullptr},
    {"description", nullptr},
    {"title", [](Reader&, SchemaNode& node, const Value& value) { node.title = textOf(value); }},
    {"type", [](Reader& reader, SchemaNode& node,
                const Value& value) { reader.readType(node, textOf(value)); }},
    {"$ref", [](Reader& reader, SchemaNode& node,
                const Value& value) { reader.readReference(node, textOf(value)); }},
    {"const", [](Reader&, SchemaNode& node, const Value& value) { node.constant = value; }},
    {"minimum",
     [](Reader&, SchemaNode& node, const Value& value) { node.minimum = numberOf(value); }},
    {"minLength",
     [](Reader&, SchemaNode& node, const Value& value) {
       node.minLength = static_cast<std::size_t>(integerValue(value));
     }},
    {"pattern", [](Reader& reader, SchemaNode& node,
                   const Value& value) { reader.readPattern(node, textOf(value)); }},
    {"anyOf",
     [](Reader& reader, SchemaNode& node, const Value& value) {
       for (std::size_t i = 0; i < value.size(); ++i)
         reader.read(value.at(i), node.anyOf.emplace_back());
     }},
    {"items",
     [](Reader& reader, SchemaNode& node, const Value& value) {
       node.items = std::make_unique<SchemaNode>();
       reader.read(value, *node.items);
     }},
    {"properties", [](Reader& reader, SchemaNode& node,
                      const Value& value) { reader.readChildren(value, node.properties); }},
    {"additionalProperties",
     [](Reader& reader, SchemaNode& node, const Value& value) {
       node.isClosed = true;
       if (value != Value(false)) reader.complain("additionalProperties");
     }},
    {"required",
     [](Reader&, SchemaNode& node, const Value& value) { node.required = textsOf(value); }},
    {"dependentRequired",
     [](Reader&, SchemaNode& node, const Value& value) {
       for (std::size_t i = 0; i < value.size(); ++i)
         node.dependentRequired.emplace_back(value.keyAt(i), textsOf(value.at(i)));
     }},
};

} // namespace

bool isWhole(const Value& value) {
  const auto* real = value.real();
  return value.integer() || (real && std::trunc(*real) == *real);
}

double numberOf(const Value& number) {
  return number.real() ? *number.real() : static_cast<double>(integerValue(number));
}

SchemaNode schemaNode(const Value& schema, Findings& unknown) {
  SchemaNode root;
  Reader(root, unknown).read(schema, root);
  return root;
}

} // namespace wrenvale::kit
