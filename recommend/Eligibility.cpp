#include "recommend/Eligibility.h"

#include "recommend/RecommenderDocument.h"
#include "recommend/Trace.h"
#include "recommend/WhiteSpace.h"

namespace wrenvale::recommend {

bool checkBuildNumber(const RecommenderDocument& document, const Host& host, Trace* trace) {
  for (const StableVersion& entry : document.stableVersions()) {
    const Text identifier = entry.bundleID();
    if (!identifier || !host.is(trimmed(*identifier))) continue;
    const bool passed = entry.buildNumber() >= host.bundleVersion;
    if (trace) trace->gate(&entry, passed);
    return passed;
  }
  if (trace) trace->gate(nullptr, false);
  return false;
}

bool isPolite(const RecommenderDocument& document, const Host& host) {
  for (const StableVersion& entry : document.stableVersions())
    if (const Text identifier = entry.bundleID(); identifier && host.is(*identifier))
      return entry.hasPolite();
  return false;
}

std::optional<Exclusion> shouldExclude(const Candidate& candidate, const Host& host,
                                       const IsInstalled& isInstalled) {
  using Reason = Exclusion::Reason;
  if (!candidate.bundleID) return Exclusion{Reason::NoIdentifier};
  const auto identifier = trimmed(*candidate.bundleID);
  if (host.is(identifier)) return Exclusion{Reason::HostItself};
  if (!isInstalled) return std::nullopt;
  if (isInstalled(identifier)) return Exclusion{Reason::Installed};
  for (const Text& other : candidate.exclude)
    if (other && isInstalled(*other)) return Exclusion{Reason::ExcludedBy, std::string(*other)};
  return std::nullopt;
}

} // namespace wrenvale::recommend
