// Holding a document against its JSON Schema.

#ifndef WRENVALE_TOOLS_WRENVALE_CHECK_JSONSCHEMA_H
#define WRENVALE_TOOLS_WRENVALE_CHECK_JSONSCHEMA_H

#include "base/Value.h"
#include "tools/wrenvale/check/Check.h"
#include "tools/wrenvale/check/SchemaNode.h"

namespace wrenvale::kit {

/// A schema of draft 2020-12. As much of the draft is known as the schemas of this project need;
/// anything else in a schema is a finding of its own, so nothing is passed over. A schema's "title"
/// says what a value must be, in words that follow "must be".
class JSONSchema {
public:
  /// Reads the schema once, so that a check looks up and compiles nothing.
  explicit JSONSchema(const Value& schema);

  /// What is wrong with the document, found in a time that grows with its length alone.
  Findings findingsIn(const Value& document) const;

private:
  Findings unknown_;
  SchemaNode root_;
};

} // namespace wrenvale::kit

#endif
