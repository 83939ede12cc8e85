// Values that read straight from a parsed document instead of copying it.

#ifndef WRENVALE_DESKTOP_NET_JSON_JSONWINDOW_H
#define WRENVALE_DESKTOP_NET_JSON_JSONWINDOW_H

#include <memory>

#include <simdjson.h>

#include "base/Value.h"

namespace wrenvale::platform {

using JSONDocument = std::shared_ptr<const simdjson::dom::document>;

/// The value of `element`, which belongs to `document`. An array or a dictionary is a window: it
/// keeps the document alive and makes its children anew each time one is asked for. Making a window
/// takes time and memory in the number of its own children; asking it for a child takes none of
/// that, so a caller that loops keeps the window instead of asking its parent again.
Value valueOf(const JSONDocument& document, simdjson::dom::element element);

} // namespace wrenvale::platform

#endif
