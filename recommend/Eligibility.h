// Whether a host may show recommendations at all, and which candidates are left out.

#ifndef WRENVALE_RECOMMEND_ELIGIBILITY_H
#define WRENVALE_RECOMMEND_ELIGIBILITY_H

#include <optional>
#include <string>

#include "recommend/Context.h"

namespace wrenvale::recommend {

class RecommenderDocument;
struct Candidate;

/// The stable-build gate: the first entry whose trimmed identifier is the host's counts, and lets
/// builds up to its own through. Closed for a host without an entry.
bool checkBuildNumber(const RecommenderDocument& document, const Host& host,
                      Trace* trace = nullptr);

/// Whether this host's alerts are suppressed: the first entry whose identifier, untrimmed, is the
/// host's has the key "polite".
bool isPolite(const RecommenderDocument& document, const Host& host);

struct Exclusion {
  enum class Reason {
    NoIdentifier,
    HostItself, ///< an application never recommends itself
    Installed,
    ExcludedBy, ///< an application of its "exclude" list is installed
  };

  Reason reason;
  std::string by{}; ///< that application
};

/// Why the candidate is left out; nothing for one that may be recommended. The candidate's own
/// identifier is trimmed, those of its "exclude" list are not.
std::optional<Exclusion> shouldExclude(const Candidate& candidate, const Host& host,
                                       const IsInstalled& isInstalled);

} // namespace wrenvale::recommend

#endif
