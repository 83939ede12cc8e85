#include "welcome/NavigationPolicy.h"

namespace wrenvale::welcome {

using platform::NavigationType;
using platform::PolicyDecision;

PolicyDecision decidePolicy(const platform::NavigationAction& action) {
  if (action.mainDocumentURL == "about:blank") return PolicyDecision::kUse;
  if (action.type == NavigationType::kOther) return PolicyDecision::kUse;
  if (action.type == NavigationType::kLinkClicked) return PolicyDecision::kNone;
  return PolicyDecision::kIgnore;
}

} // namespace wrenvale::welcome
