// When a user is asked for a rating, and in which words: decisions over what is stored, without a
// window or a clock.
//
// A build with any rating record (rating/RatingRecords.h) is never asked about by a trigger again.
// "Version Counters" is a dictionary from version string to how often the counted trigger was
// called for that version.

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

} // namespace wrenvale::rating

#endif
