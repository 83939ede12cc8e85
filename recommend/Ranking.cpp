#include "recommend/Ranking.h"

#include <algorithm>
#include <string>
#include <unordered_map>

#include "recommend/Eligibility.h"
#include "recommend/KVXAppRecommendation.h"
#include "recommend/RecommenderDocument.h"
#include "recommend/Scoring.h"
#include "recommend/Trace.h"

namespace wrenvale::recommend {

namespace {

/// The comparison of one sorting.
class Comparison {
public:
  explicit Comparison(const std::function<std::uint32_t()>& random)
      : random_(random) {}

  /// Below 0 when `a` comes first, above 0 when `b` does, 0 when they are equal.
  int operator()(std::int64_t a, std::int64_t b) {
    if (a != b) return a > b ? -1 : 1;
    if (tieBreakCount_ > 39) {
      ++tieBreakCount_;
      return 0;
    }
    return random_() & 1 ? -1 : 1;
  }

private:
  const std::function<std::uint32_t()>& random_;
  /// Counts only once it is above 39, so it stays 0 and every tie is tossed for. That is intended:
  /// ties are random however many there are.
  std::int64_t tieBreakCount_ = 0;
};

struct Entry {
  std::int64_t points;
  std::shared_ptr<KVXAppRecommendation> record;
};

using Run = std::vector<Entry>::iterator;

Run mergeRuns(Run left, Run middle, Run end, Run output, Comparison& compare) {
  Run right = middle;
  while (left != middle && right != end) {
    Run& first = compare(left->points, right->points) > 0 ? right : left;
    *output++ = std::move(*first++);
  }
  output = std::move(left, middle, output);
  return std::move(right, end, output);
}

// A bottom-up merge sort. Unlike std::sort it is safe with a comparison that contradicts itself:
// each step takes the head of one of two runs, whichever the comparison says.
void mergeSort(std::vector<Entry>& entries, Comparison& compare) {
  std::vector<Entry> merged(entries.size());
  const std::size_t count = entries.size();
  for (std::size_t width = 1; width < count; width *= 2) {
    Run output = merged.begin();
    for (std::size_t start = 0; start < count; start += 2 * width) {
      const Run begin = entries.begin();
      output = mergeRuns(begin + start, begin + std::min(start + width, count),
                         begin + std::min(start + 2 * width, count), output, compare);
    }
    entries.swap(merged);
  }
}

} // namespace

void sortByPoints(Recommendations& recommendations, const std::function<std::uint32_t()>& random) {
  std::vector<Entry> entries;
  entries.reserve(recommendations.size());
  for (auto& record : recommendations) {
    const auto points = record->points();
    entries.push_back({points, std::move(record)});
  }
  Comparison compare(random);
  mergeSort(entries, compare);
  std::transform(entries.begin(), entries.end(), recommendations.begin(),
                 [](Entry& entry) { return std::move(entry.record); });
}

Recommendations onePerGroup(Recommendations sorted, Trace* trace) {
  std::unordered_map<std::string, const KVXAppRecommendation*> best;
  std::erase_if(sorted, [&](const auto& record) {
    auto group = record->group();
    if (!group) return false;
    const auto [place, isFirst] = best.try_emplace(std::move(*group), record.get());
    if (!isFirst && trace) trace->groupTaken(*record, *place->second);
    return !isFirst;
  });
  return sorted;
}

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
