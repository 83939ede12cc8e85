#include "rating/RatingRecords.h"

namespace wrenvale::rating {

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
