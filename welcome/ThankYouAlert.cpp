#include "welcome/ThankYouAlert.h"

#include <algorithm>

#include "core/Identity.h"

namespace wrenvale::welcome {

std::shared_ptr<const Recommendation> firstWithAlert(const RecommendationList& recommendations) {
  const auto found = std::find_if(recommendations.begin(), recommendations.end(),
                                  [](const auto& each) { return each->alertText().has_value(); });
  return found == recommendations.end() ? nullptr : *found;
}

platform::Alert thankYouAlert(const Recommendation& recommendation, bool updating,
                              std::string_view appName, const platform::Application& application) {
  const auto thanks =
      localizedText(application, updating ? "Thank you for updating" : "Thank you for downloading");
  auto button = recommendation.alertButtonName();
  return {.title = std::string(appName),
          .messageText = thanks + " " + std::string(appName) + "!",
          .informativeText = recommendation.alertText().value_or(""),
          .defaultButton = button ? std::move(*button) : localizedText(application, "Ok"),
          .alternateButton = localizedText(application, "Cancel")};
}

std::optional<std::string> alertDestination(const Recommendation& recommendation) {
  auto alertLink = recommendation.alertLink();
  return alertLink ? alertLink : recommendation.link();
}

} // namespace wrenvale::welcome
