#include "welcome/PagePolicy.h"

#include <cmath>

namespace wrenvale::welcome {

using platform::NavigationType;
using platform::PolicyDecision;

PolicyDecision decidePolicy(const platform::NavigationAction& action) {
  if (action.mainDocumentURL == "about:blank") return PolicyDecision::kUse;
  if (action.type == NavigationType::kOther) return PolicyDecision::kUse;
  if (action.type == NavigationType::kLinkClicked) return PolicyDecision::kNone;
  return PolicyDecision::kIgnore;
}

platform::Frame resizedAroundCentre(const platform::Frame& current, double width, double height) {
  return {.x = std::round(current.x + (current.width - width) * 0.5),
          .y = current.y + (current.height - height) * 0.5,
          .width = width,
          .height = height};
}

} // namespace wrenvale::welcome
