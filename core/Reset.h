// The remote reset: whether the maker's server wants the welcome window shown again.
//
// The reset document is an array of entries; the first one that applies counts:
//   "bundle_id"         the application that the entry is for, compared exactly
//   "reset_mode"        "auto": show the window after every update
//   "reset_number"      a generation; another one than the last applied shows the window
//   "min_build_number"  \ the builds that the generation is for, both included;
//   "max_build_number"  / absent is 0

#ifndef WRENVALE_CORE_RESET_H
#define WRENVALE_CORE_RESET_H

#include <cstdint>
#include <optional>
#include <string>

#include "base/Value.h"

namespace wrenvale {

/// What the check knows of this host before it changes anything.
struct ResetState {
  std::optional<std::string> bundleID;
  std::int64_t bundleVersion = 0;
  bool firstRun = false;
  bool showUpdateWindow = false; ///< already owed
  Value lastVersion;             ///< "Recommender Last Version"
  Value resetNumber;             ///< "Recommender Reset Number"

  /// This launch's build is another than the last launch's, or there was none.
  bool versionChanged() const;
};

struct ResetOutcome {
  /// The generation to remember, as it stands in the document (null when it stands nowhere);
  /// nothing when none is to be remembered.
  std::optional<Value> resetNumber;
  /// The welcome window is owed from now on.
  bool showUpdateWindow = false;
};

/// A document, or an entry, of the wrong type asks for nothing.
ResetOutcome resetOutcome(const Value& document, const ResetState& state);

} // namespace wrenvale

#endif
