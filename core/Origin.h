// Whose a page is: scheme, host and port of its address.

#ifndef WRENVALE_CORE_ORIGIN_H
#define WRENVALE_CORE_ORIGIN_H

#include <string_view>

namespace wrenvale {

/// Whether two addresses of the web have the same origin. Letter case of scheme and host does not
/// matter, nor whether a scheme's usual port is written. What is no such address has none, and is
/// never the same.
bool haveSameOrigin(std::string_view one, std::string_view other);

} // namespace wrenvale

#endif
