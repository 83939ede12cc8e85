// Every key that the framework keeps in the host's user defaults. Nothing registers defaults: an
// absent key reads as null, false or 0.

#ifndef WRENVALE_CORE_PERSISTEDKEYS_H
#define WRENVALE_CORE_PERSISTEDKEYS_H

#include <string_view>

namespace wrenvale::keys {

/// Integer: the build seen by the last launch. Its absence marks the host's very first launch.
inline constexpr std::string_view kRecommenderLastVersion = "Recommender Last Version";
/// Number: the reset generation already applied, as the server wrote it.
inline constexpr std::string_view kRecommenderResetNumber = "Recommender Reset Number";
/// Boolean: the welcome window is owed to the user.
inline constexpr std::string_view kShowUpdateWindow = "Show Update Window";
/// Dictionary from version string to an array of rating records (rating/RatingRecords.h).
inline constexpr std::string_view kVersionRatings = "Version Ratings";
/// Dictionary from version string to integer: calls of the counted rating trigger.
inline constexpr std::string_view kVersionCounters = "Version Counters";
/// String: the version for which the rating alert was last shown.
inline constexpr std::string_view kRateVersion = "Rate Version";
/// Array of strings, written by the host: the product identifiers that the user owns.
inline constexpr std::string_view kPurchases = "Purchases";

} // namespace wrenvale::keys

#endif
