// The list that a given host would show, and why: the framework's own decisions, written down.

#ifndef WRENVALE_TOOLS_WRENVALE_PREVIEW_PREVIEW_H
#define WRENVALE_TOOLS_WRENVALE_PREVIEW_PREVIEW_H

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "base/Value.h"
#include "recommend/Context.h"
#include "recommend/KVXAppRecommendation.h"

namespace wrenvale::kit {

struct PreviewRequest {
  recommend::Host host;
  std::set<std::string, std::less<>> installed; ///< identifiers; the host's only when it is listed
  std::vector<std::string> purchased;           ///< "Purchases"
  std::string vendorBase;
  std::uint32_t seed = 0; ///< of the coin that settles ties
};

struct PreviewedApp {
  std::shared_ptr<const KVXAppRecommendation> record;
  std::vector<std::string> reasons; ///< for its points, a line each
};

struct LeftOutApp {
  std::optional<std::string> bundleID;
  std::string reason; ///< no-identifier, host-itself, installed, excluded-by or group
  std::string detail; ///< the application behind the reason; may be empty
};

struct Preview {
  bool gate = false;
  std::string gateReason;
  bool polite = false;
  std::optional<std::vector<PreviewedApp>> recommendations; ///< nothing when the gate is closed
  std::vector<LeftOutApp> leftOut;
};

Preview previewOf(const Value& document, const PreviewRequest& request);

/// For people.
std::string asText(const Preview& preview);

/// One JSON object: "gate", "polite", "recommendations" (null when the gate is closed), "left_out".
std::string asJSON(const Preview& preview);

} // namespace wrenvale::kit

#endif
