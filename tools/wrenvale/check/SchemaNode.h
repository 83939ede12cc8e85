// A JSON Schema, read and ready to be held against many values.

#ifndef WRENVALE_TOOLS_WRENVALE_CHECK_SCHEMANODE_H
#define WRENVALE_TOOLS_WRENVALE_CHECK_SCHEMANODE_H

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <re2/re2.h>

#include "base/Value.h"
#include "tools/wrenvale/check/Check.h"

namespace wrenvale::kit {

/// A type of the schema language.
struct SchemaType {
  std::string_view name;
  const char* noun;
  bool (*fits)(const Value& value);
};

/// One schema, a member for each keyword. What a keyword that is absent would allow, is allowed.
struct SchemaNode {
  using Children = std::map<std::string, std::unique_ptr<SchemaNode>, std::less<>>;

  std::string title;
  const SchemaType* type = nullptr;
  const SchemaNode* reference = nullptr; ///< into the root's definitions
  std::optional<Value> constant;
  std::optional<double> minimum;
  std::size_t minLength = 0;          ///< in bytes
  std::unique_ptr<const RE2> pattern; ///< needs no stack, and time in proportion to the text
  std::vector<SchemaNode> anyOf;
  std::unique_ptr<SchemaNode> items;
  Children properties;
  Children definitions;
  bool isClosed = false; ///< "additionalProperties" is false
  std::vector<std::string> required;
  std::vector<std::pair<std::string, std::vector<std::string>>> dependentRequired;
};

/// Whether a number has no fraction, as 17.0 has none.
bool isWhole(const Value& value);

double numberOf(const Value& number);

/// Adds a finding, about the whole document, for each thing in the schema that is not known.
SchemaNode schemaNode(const Value& schema, Findings& unknown);

} // namespace wrenvale::kit

#endif
