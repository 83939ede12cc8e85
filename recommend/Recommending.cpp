#include "recommend/Recommending.h"

#include "recommend/Eligibility.h"
#include "recommend/KVXAppRecommendation.h"
#include "recommend/RecommenderDocument.h"
#include "recommend/Scoring.h"
#include "recommend/Trace.h"

namespace wrenvale::recommend {

Recommendations recommendedApps(const RecommenderDocument& document, const Context& context) {
  const bool polite = isPolite(document, context.host);
  if (context.trace) context.trace->politeness(polite);
  Recommendations result;
  for (Candidate candidate : document.apps())
    if (auto record = buildApp(std::move(candidate), polite, context))
      result.push_back(std::move(record));
  sortByPoints(result, context.random);
  return result;
}

std::optional<Recommendations> recommendations(const RecommenderDocument& document,
                                               const Context& context) {
  if (!checkBuildNumber(document, context.host, context.trace)) return std::nullopt;
  return onePerGroup(recommendedApps(document, context), context.trace);
}

} // namespace wrenvale::recommend
