// The recommendations as the page reads them.

#ifndef WRENVALE_WELCOME_JSONWRITER_H
#define WRENVALE_WELCOME_JSONWRITER_H

#include <string>
#include <vector>

#include "core/Recommendation.h"

namespace wrenvale::welcome {

/// A JSON array of the dictionaries (RFC 8259), in order, spread over lines and indented. It is
/// UTF-8 whatever the strings hold: every byte of theirs that is not gives a replacement character.
/// A value that is neither a string nor an integer is written as null.
std::string prettyPrintedJSON(const std::vector<Recommendation::Dictionary>& dictionaries);

} // namespace wrenvale::welcome

#endif
