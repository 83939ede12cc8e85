// The one-time alert that thanks the user and points to an application: its rule and its words.

#ifndef WRENVALE_WELCOME_THANKYOUALERT_H
#define WRENVALE_WELCOME_THANKYOUALERT_H

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/Recommendation.h"
#include "platform/Alert.h"

namespace wrenvale {

namespace platform {
class Application;
}

namespace welcome {

/// The first of the list that has alert text; null when none has.
std::shared_ptr<const Recommendation> firstWithAlert(const RecommendationList& recommendations);

/// `recommendation` has alert text. `updating` thanks for an update instead of the download.
platform::Alert thankYouAlert(const Recommendation& recommendation, bool updating,
                              std::string_view appName, const platform::Application& application);

/// What the alert's default button opens; nothing when there is nothing to open.
std::optional<std::string> alertDestination(const Recommendation& recommendation);

} // namespace welcome

} // namespace wrenvale

#endif
