#include "rating/RatingPolicy.h"

#include "rating/RatingRecords.h"

namespace wrenvale::rating {

std::int64_t counter(const Value& versionCounters, std::string_view version) {
  return integerValue(versionCounters.find(version));
}

Value withNextCount(const Value& versionCounters, std::string_view version) {
  auto counters = versionCounters.mutableDictionary();
  const auto next = static_cast<std::uint64_t>(counter(versionCounters, version)) + 1;
  counters.insert_or_assign(std::string(version), static_cast<std::int64_t>(next));
  return counters;
}

platform::Alert ratingAlert(const std::optional<std::string>& appName) {
  const std::string name = formatted(appName);
  return {.title = appName.value_or(""),
          .messageText = "Please take a minute to rate " + name + "!",
          .informativeText = "Ratings and feedback will help us to improve " + name +
                             ". This message won't show up again, but you can rate " + name +
                             " easily any time from the Help menu.",
          .defaultButton = "Rate " + name + " on Appstore",
          .alternateButton = "No thanks"};
}

std::vector<std::int64_t> historyForAnswer(int answer) {
  return {answer == platform::kAlertDefaultReturn ? kRatedInStore : kDismissed};
}

} // namespace wrenvale::rating
