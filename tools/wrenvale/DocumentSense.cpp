#include "tools/wrenvale/DocumentSense.h"

#include <algorithm>
#include <vector>

#include "recommend/RecommenderDocument.h"
#include "tools/wrenvale/JSONPlaces.h"

namespace wrenvale::kit {

namespace {

using namespace recommend;
using enum Finding::Weight;

std::string textOf(const Text& text) {
  return std::string(text ? *text : std::string_view());
}

// A generation of the reset document.
struct Generation {
  explicit Generation(const Value& entry)
      : bundleID(stringValue(entry.find("bundle_id")))
      , lowest(integerValue(entry.find("min_build_number")))
      , highest(integerValue(entry.find("max_build_number"))) {}

  bool covers(const Generation& other) const {
    return bundleID == other.bundleID && lowest <= other.lowest && other.highest <= highest;
  }

  std::optional<std::string> bundleID;
  std::int64_t lowest;
  std::int64_t highest;
};

// The findings about one list of identifiers, one of which is for naught when it stands twice.
void findRepeated(const std::string& id, const std::string& pointer, const char* consequence,
                  Identifiers& seen, Findings& findings) {
  if (!id.empty() && !seen.insert(id).second)
    findings.push_back(
        {childOf(pointer, "bundle_id"), Error, id + " stands here twice; " + consequence});
}

void senseOfDependencies(const Candidate& candidate, const std::string& pointer,
                         const Identifiers& known, const Identifiers& hosts, Findings& findings) {
  std::size_t index = 0;
  for (const Dependency dependency : candidate.dependencies) {
    const auto id = textOf(dependency.bundleID());
    const auto place = childOf(childOf(childOf(pointer, "dependency"), index++), "bundle_id");
    if (id.empty()) continue; // the schema says that
    if (id == textOf(candidate.bundleID))
      findings.push_back({place, Warning, "never holds: installed, the application is left out"});
    else if (dependency.inAppCheck() && !hosts.contains(id))
      findings.push_back({place, Warning, id + " is no host, so \"in_app_check\" never holds"});
    else if (!known.contains(id))
      findings.push_back({place, Warning, "no document knows " + id});
  }
}

Identifiers hostsIn(const RecommenderDocument& document) {
  Identifiers hosts;
  for (const StableVersion version : document.stableVersions())
    hosts.insert(textOf(version.bundleID()));
  return hosts;
}

} // namespace

Identifiers identifiersIn(const Value& recommenderDocument) {
  const RecommenderDocument document(recommenderDocument);
  auto result = hostsIn(document);
  for (const Candidate candidate : document.apps())
    result.insert(textOf(candidate.bundleID));
  return result;
}

Findings senseOfReset(const Value& document) {
  Findings findings;
  std::vector<Generation> earlier;
  for (std::size_t i = 0; i < document.size(); ++i) {
    const Value entry = document.at(i);
    if (!entry.contains("max_build_number")) continue;
    const Generation generation(entry);
    const auto place = childOf(childOf("", i), "max_build_number");
    const auto covers = [&](const Generation& other) { return other.covers(generation); };
    if (generation.lowest > generation.highest)
      findings.push_back({place, Error,
                          "no build is from " + std::to_string(generation.lowest) + " to " +
                              std::to_string(generation.highest)});
    else if (std::ranges::any_of(earlier, covers))
      findings.push_back({place, Warning, "an earlier entry takes all of these builds"});
    earlier.push_back(generation);
  }
  return findings;
}

Findings senseOfRecommender(const Value& value, const Identifiers& known) {
  const RecommenderDocument document(value);
  const auto hosts = hostsIn(document);
  Findings findings;
  if (hosts.empty())
    findings.push_back({"/options", Warning, "no host may show this document's applications"});

  Identifiers seenHosts, seenApps;
  std::size_t index = 0;
  for (const StableVersion version : document.stableVersions())
    findRepeated(textOf(version.bundleID()), childOf("/options/stable_versions", index++),
                 "only the first counts", seenHosts, findings);
  index = 0;
  for (const Candidate candidate : document.apps()) {
    const auto pointer = childOf("/apps", index++);
    findRepeated(textOf(candidate.bundleID), pointer, "both are recommended", seenApps, findings);
    senseOfDependencies(candidate, pointer, known, hosts, findings);
  }
  return findings;
}

} // namespace wrenvale::kit
