#include "tools/wrenvale/check/SemanticChecks.h"

#include <iterator>
#include <map>

#include "recommend/RecommenderDocument.h"
#include "tools/wrenvale/json/JSONPlaces.h"

namespace wrenvale::kit {

namespace {

using namespace recommend;
using enum Finding::Weight;

std::string textOf(const Text& text) {
  return std::string(text ? *text : std::string_view());
}

// The builds for which a host has generations already.
class TakenBuilds {
public:
  // Whether an earlier range contains all of this one.
  bool contain(std::int64_t lowest, std::int64_t highest) const {
    const auto next = ranges_.upper_bound(lowest);
    return next != ranges_.begin() && highest <= std::prev(next)->second;
  }

  // A range that no earlier one contains.
  void add(std::int64_t lowest, std::int64_t highest) {
    auto next = ranges_.insert_or_assign(lowest, highest).first;
    for (++next; next != ranges_.end() && next->second <= highest;)
      next = ranges_.erase(next);
  }

private:
  std::map<std::int64_t, std::int64_t> ranges_; ///< none contains another: both ends ascend
};

// The findings about one list of identifiers, one of which is for naught when it stands twice.
void findRepeated(const std::string& id, const std::string& pointer, const char* consequence,
                  Identifiers& seen, Findings& findings) {
  if (!id.empty() && !seen.insert(id).second)
    findings.push_back(
        {childOf(pointer, "bundle_id"), Error, id + " stands here twice; " + consequence});
}

void checkDependencies(const Candidate& candidate, const std::string& pointer,
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

Findings checkResetSemantics(const Value& document) {
  Findings findings;
  std::map<std::optional<std::string>, TakenBuilds> takenBuilds;
  for (std::size_t i = 0; i < document.size(); ++i) {
    const Value entry = document.at(i);
    if (!entry.contains("max_build_number")) continue;
    const auto lowest = integerValue(entry.find("min_build_number"));
    const auto highest = integerValue(entry.find("max_build_number"));
    const auto place = childOf(childOf("", i), "max_build_number");
    auto& taken = takenBuilds[stringValue(entry.find("bundle_id"))];
    if (lowest > highest)
      findings.push_back(
          {place, Error,
           "no build is from " + std::to_string(lowest) + " to " + std::to_string(highest)});
    else if (taken.contain(lowest, highest))
      findings.push_back({place, Warning, "an earlier entry takes all of these builds"});
    else
      taken.add(lowest, highest);
  }
  return findings;
}

Findings checkRecommenderSemantics(const Value& value, const Identifiers& known) {
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
    checkDependencies(candidate, pointer, known, hosts, findings);
  }
  return findings;
}

} // namespace wrenvale::kit
