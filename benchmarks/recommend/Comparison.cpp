#include <algorithm>
#include <cstdint>
#include <optional>
#include <random>
#include <unordered_set>
#include <vector>

#include <nlohmann/json.hpp>

#include "benchmarks/recommend/Documents.h"
#include "benchmarks/recommend/Pipelines.h"

namespace wrenvale::benchmark {

namespace {

using nlohmann::json;
using Text = std::optional<std::string>;

struct Dependency {
  Text bundleID, brick, description;
  std::int64_t score;
  bool inAppCheck;
};

struct Candidate {
  Text bundleID, name, icon, brick, media, description, linkName, link, group, alertText, alertLink,
      alertLinkName;
  std::int64_t points;
  std::vector<std::string> exclude;
  std::vector<Dependency> dependencies;
};

Text text(const json& entry, const char* key) {
  const auto found = entry.find(key);
  return found != entry.end() ? Text(found->get<std::string>()) : std::nullopt;
}

Dependency dependencyOf(const json& entry) {
  return {.bundleID = text(entry, "bundle_id"),
          .brick = text(entry, "brick"),
          .description = text(entry, "sp_description"),
          .score = entry.value("dependency_score", std::int64_t{100}),
          .inAppCheck = entry.value("in_app_check", false)};
}

Candidate candidateOf(const json& entry) {
  Candidate candidate{.bundleID = text(entry, "bundle_id"),
                      .name = text(entry, "sp_name"),
                      .icon = text(entry, "sp_icon"),
                      .brick = text(entry, "brick"),
                      .media = text(entry, "media"),
                      .description = text(entry, "sp_description"),
                      .linkName = text(entry, "sp_link_name"),
                      .link = text(entry, "link"),
                      .group = text(entry, "group"),
                      .alertText = text(entry, "alert_text"),
                      .alertLink = text(entry, "alert_link"),
                      .alertLinkName = text(entry, "alert_link_name"),
                      .points = entry.value("priority_score", std::int64_t{0}),
                      .exclude = entry.value("exclude", std::vector<std::string>()),
                      .dependencies = {}};
  for (const auto& dependency : entry.at("dependency"))
    candidate.dependencies.push_back(dependencyOf(dependency));
  return candidate;
}

bool isLeftOut(const Candidate& candidate) {
  return !candidate.bundleID || *candidate.bundleID == kHost || isInstalled(*candidate.bundleID) ||
         std::any_of(candidate.exclude.begin(), candidate.exclude.end(), isInstalled);
}

void score(Candidate& candidate) {
  for (const auto& dependency : candidate.dependencies) {
    if (!dependency.bundleID || !isInstalled(*dependency.bundleID)) continue;
    if (dependency.inAppCheck && *dependency.bundleID != kHost) continue;
    candidate.points += dependency.score;
    if (dependency.brick) candidate.brick = dependency.brick;
    if (dependency.description) candidate.description = dependency.description;
  }
}

bool gateIsOpen(const json& document) {
  for (const auto& entry : document.at("options").at("stable_versions"))
    if (entry.value("bundle_id", "") == kHost) return entry.value("build_number", 0) >= kBuild;
  return false;
}

void onePerGroup(std::vector<Candidate>& candidates) {
  std::unordered_set<std::string> groups;
  std::erase_if(candidates, [&](const Candidate& candidate) {
    return candidate.group && !groups.insert(*candidate.group).second;
  });
}

} // namespace

std::size_t comparison(std::string text) {
  const auto document = json::parse(std::move(text));
  if (!gateIsOpen(document)) return 0;
  std::vector<Candidate> candidates;
  for (const auto& entry : document.at("apps")) {
    auto candidate = candidateOf(entry);
    if (isLeftOut(candidate)) continue;
    score(candidate);
    candidate.icon = "http://vendor.example/store/images/" + candidate.icon.value_or("(null)");
    candidates.push_back(std::move(candidate));
  }
  // Shuffled first, since this order needs its ties to be random and std::sort a comparison that
  // does not contradict itself.
  std::shuffle(candidates.begin(), candidates.end(), std::mt19937());
  std::sort(candidates.begin(), candidates.end(),
            [](const Candidate& a, const Candidate& b) { return a.points > b.points; });
  onePerGroup(candidates);
  return candidates.size();
}

} // namespace wrenvale::benchmark
