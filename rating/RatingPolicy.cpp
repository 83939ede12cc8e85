#include "rating/RatingPolicy.h"

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

namespace {

bool ratedInStore(const Value& record) {
  const Value history = record.find("History");
  for (std::size_t i = 0; i < history.size(); ++i)
    if (integerValue(history.at(i)) == kRatedInStore) return true;
  return false;
}

Value asDictionary(const Record& record) {
  Value::Array history(record.history.begin(), record.history.end());
  return Value::Dictionary{
      {"History", std::move(history)}, {"Triggered", record.triggered}, {"Date", record.date}};
}

} // namespace

bool hasEntry(const Value& versionRatings, std::string_view version) {
  return versionRatings.contains(version);
}

bool anyRatedInStore(const Value& versionRatings) {
  for (std::size_t v = 0; versionRatings.isDictionary() && v < versionRatings.size(); ++v) {
    const Value records = versionRatings.at(v);
    for (std::size_t r = 0; r < records.size(); ++r)
      if (ratedInStore(records.at(r))) return true;
  }
  return false;
}

Value withRecord(const Value& versionRatings, std::string_view version, const Record& record) {
  auto ratings = versionRatings.mutableDictionary();
  auto records = versionRatings.find(version).mutableArray();
  records.push_back(asDictionary(record));
  ratings.insert_or_assign(std::string(version), std::move(records));
  return ratings;
}

} // namespace wrenvale::rating
