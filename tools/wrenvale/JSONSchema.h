// Holding a document against its JSON Schema.

#ifndef WRENVALE_TOOLS_JSONSCHEMA_H
#define WRENVALE_TOOLS_JSONSCHEMA_H

#include "core/Value.h"
#include "tools/wrenvale/Finding.h"

namespace wrenvale::kit {

/// What is wrong with the document by a schema of draft 2020-12. As much of the draft is known as
/// the schemas of this project need; anything else in a schema is a finding of its own, so nothing
/// is passed over. A schema's "title" says what a value must be, in words that follow "must be".
Findings findingsBySchema(const Value& document, const Value& schema);

} // namespace wrenvale::kit

#endif
