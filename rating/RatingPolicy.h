// When a user is asked for a rating, in which words, and what each prompt leaves on record:
// decisions over what is stored, without a window or a clock.
//
// "Version Ratings" is a dictionary from version string to an array of records, oldest first. A
// record is a dictionary of "History" (array of action codes), "Triggered" (boolean) and "Date". A
// build with any record is never asked about by a trigger again. "Version Counters" is a dictionary
// from version string to how often the counted trigger was called for that version.

#ifndef WRENVALE_RATING_RATINGPOLICY_H
#define WRENVALE_RATING_RATINGPOLICY_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Value.h"
#include "platform/Alert.h"

namespace wrenvale::rating {

/// The counter of the version; 0 when there is none.
std::int64_t counter(const Value& versionCounters, std::string_view version);

/// "Version Counters" with the version's counter one higher; after the largest integer comes the
/// smallest, so that no count is ever met twice. What is there and is no dictionary counts as
/// empty; the entries of other versions are kept as they are.
Value withNextCount(const Value& versionCounters, std::string_view version);

/// The alert that asks for a rating. Its texts are English in every language.
platform::Alert ratingAlert(const std::optional<std::string>& appName);

/// The history of a session that was the alert and this answer to it.
std::vector<std::int64_t> historyForAnswer(int answer);

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
