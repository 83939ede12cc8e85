// From a candidate of the document to a record with points.

#ifndef WRENVALE_RECOMMEND_SCORING_H
#define WRENVALE_RECOMMEND_SCORING_H

#include <memory>

#include "recommend/Context.h"

namespace wrenvale {

class KVXAppRecommendation;

namespace recommend {

class Dependency;
struct Candidate;

enum class DependencyOutcome {
  Holds,
  NotInstalled,   ///< or without an identifier
  NotTheHost,     ///< in_app_check names another application than the host
  PurchaseRecord, ///< in_app_check, and the purchase record says yes
  Purchases,      ///< in_app_check, and "Purchases" lists something
};

/// Whether the dependency earns the candidate its score.
DependencyOutcome dependencyOutcome(const Dependency& dependency, const Context& context);

/// The record for the candidate; null when it is to be left out. Its points are the candidate's
/// priority score and the scores of the dependencies that hold; beyond 64 bits they wrap. A
/// dependency that holds may replace the banner and the description, a later one again; it never
/// redirects the link. A polite host's records carry no alert.
std::shared_ptr<KVXAppRecommendation> buildApp(Candidate candidate, bool polite,
                                               const Context& context);

} // namespace recommend

} // namespace wrenvale

#endif
