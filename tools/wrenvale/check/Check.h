// Whether the maker's documents will do what they say.

#ifndef WRENVALE_TOOLS_WRENVALE_CHECK_CHECK_H
#define WRENVALE_TOOLS_WRENVALE_CHECK_CHECK_H

#include <cstddef>
#include <filesystem>
#include <optional>
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

struct CheckedPlace {
  std::string place; ///< "file:line:column", or a file or folder alone
  Finding::Weight weight;
  std::string text;
};

struct CheckReport {
  std::size_t documents = 0;
  std::vector<CheckedPlace> findings; ///< document by document, in the order of the text

  std::size_t count(Finding::Weight weight) const;
};

/// Reads every document as the framework does, and holds it against its schema and against sense. A
/// document is for a reset when its file's name begins with "reset_", for recommendations when it
/// begins with "recommender_", and by its top level otherwise. With a `site`, the served folder,
/// icons are looked for there. Applications are known that any of the documents names.
CheckReport check(const std::vector<std::filesystem::path>& documents,
                  const std::optional<std::filesystem::path>& site);

/// Checks every document of the served folder, and whether those that hosts ask for beside them,
/// and the pages, are there.
CheckReport checkSite(const std::filesystem::path& site);

} // namespace wrenvale::kit

#endif
