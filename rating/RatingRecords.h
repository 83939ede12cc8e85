// Rating records: what every rating prompt leaves behind, filed per build.
//
// "Version Ratings" is a dictionary from version string to an array of records, oldest first. A
// record is a dictionary of "History" (array of action codes), "Triggered" (boolean) and "Date".

#ifndef WRENVALE_RATING_RATINGRECORDS_H
#define WRENVALE_RATING_RATINGRECORDS_H

#include <cstdint>
#include <string_view>
#include <vector>

#include "base/Value.h"

namespace wrenvale::rating {

/// One step of a prompt session, as "History" stores it.
enum ActionCode : std::int64_t {
  kDismissed = 0,
  kLiked = 1,
  kDisliked = 2,
  kRatedInStore = 3,
  kContactedSupport = 4,
  kRatedEarlierBuild = 5, ///< no prompt needed: an earlier build holds kRatedInStore
};

struct Record {
  std::vector<std::int64_t> history; ///< action codes in the order in which they happened
  bool triggered = false;            ///< opened by a rating trigger
  Date date;
};

/// Whether anything at all is filed for the version, even an empty array.
bool hasEntry(const Value& versionRatings, std::string_view version);

/// Whether the user rated any version in the store.
bool anyRatedInStore(const Value& versionRatings);

/// "Version Ratings" with the record appended for the version. What is there and is no dictionary,
/// or no array under the version, counts as empty; all else is kept as it is.
Value withRecord(const Value& versionRatings, std::string_view version, const Record& record);

} // namespace wrenvale::rating

#endif
