// What a document may say by its schema, and yet does not mean.

#ifndef WRENVALE_TOOLS_WRENVALE_CHECK_SEMANTICCHECKS_H
#define WRENVALE_TOOLS_WRENVALE_CHECK_SEMANTICCHECKS_H

#include <set>
#include <string>

#include "base/Value.h"
#include "tools/wrenvale/check/Check.h"

namespace wrenvale::kit {

using Identifiers = std::set<std::string, std::less<>>;

/// The identifiers of the recommender document's applications and hosts.
Identifiers identifiersIn(const Value& recommenderDocument);

/// Build ranges that are empty, and generations that are never reached.
Findings checkResetSemantics(const Value& document);

/// Entries that repeat another one, and dependencies that never hold; `known` are the identifiers
/// of the maker's applications.
Findings checkRecommenderSemantics(const Value& document, const Identifiers& known);

} // namespace wrenvale::kit

#endif
