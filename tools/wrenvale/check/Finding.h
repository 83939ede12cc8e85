// What `wrenvale check` has to say about one place of a document.

#ifndef WRENVALE_TOOLS_WRENVALE_CHECK_FINDING_H
#define WRENVALE_TOOLS_WRENVALE_CHECK_FINDING_H

#include <string>
#include <vector>

namespace wrenvale::kit {

struct Finding {
  enum class Weight { Warning, Error };

  std::string pointer; ///< a JSON Pointer (RFC 6901); "" for the whole document
  Weight weight;       ///< an error keeps the document from doing what it says
  std::string text;
};

using Findings = std::vector<Finding>;

} // namespace wrenvale::kit

#endif
