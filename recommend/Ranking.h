// The order of the recommendations, and which of them are kept.

#ifndef WRENVALE_RECOMMEND_RANKING_H
#define WRENVALE_RECOMMEND_RANKING_H

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "recommend/Context.h"

namespace wrenvale {

class KVXAppRecommendation;

namespace platform {
class Random;
}

namespace recommend {

class Trace;

/// Best first.
using Recommendations = std::vector<std::shared_ptr<KVXAppRecommendation>>;

/// Sorts by points, the highest first. Records with equal points come in random order: every
/// comparison of two such records is a toss of its own, so the same two may be ordered differently
/// each time that they meet.
void sortByPoints(Recommendations& recommendations, const std::function<std::uint32_t()>& random);

/// The sorted list with only the first record of each group. A record without a group stays; groups
/// are compared exactly.
Recommendations onePerGroup(Recommendations sorted, Trace* trace = nullptr);

} // namespace recommend

} // namespace wrenvale

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
