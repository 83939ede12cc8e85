// From the recommender document to the list that a host shows.
//
// Pure decisions over the document, the host and the answers that Context gives. Background
// threads: they ask the system about every application that the document names.

#ifndef WRENVALE_RECOMMEND_RECOMMENDING_H
#define WRENVALE_RECOMMEND_RECOMMENDING_H

#include <optional>

#include "recommend/Context.h"
#include "recommend/Ranking.h"

namespace wrenvale::recommend {

class RecommenderDocument;

/// A record for every candidate that is not left out, best first.
Recommendations recommendedApps(const RecommenderDocument& document, const Context& context);

/// The final list: the gate, then recommendedApps(), then one per group. Nothing when the gate is
/// closed, which is not the same as an empty list.
std::optional<Recommendations> recommendations(const RecommenderDocument& document,
                                               const Context& context);

} // namespace wrenvale::recommend

#endif
