#include "tools/wrenvale/preview/Preview.h"

#include <map>
#include <random>

#include "core/BuildConfiguration.h"
#include "core/Endpoints.h"
#include "recommend/Eligibility.h"
#include "recommend/Ranking.h"
#include "recommend/RecommenderDocument.h"
#include "recommend/Scoring.h"
#include "recommend/Trace.h"

namespace wrenvale::kit {

namespace {

using namespace recommend;

std::string nameOf(Exclusion::Reason reason) {
  switch (reason) {
  case Exclusion::Reason::NoIdentifier:
    return "no-identifier";
  case Exclusion::Reason::HostItself:
    return "host-itself";
  case Exclusion::Reason::Installed:
    return "installed";
  case Exclusion::Reason::ExcludedBy:
    return "excluded-by";
  }
  return {};
}

const char* meaningOf(DependencyOutcome outcome) {
  switch (outcome) {
  case DependencyOutcome::Holds:
    return " is installed";
  case DependencyOutcome::NotInstalled:
    return " is not installed";
  case DependencyOutcome::NotTheHost:
    return " is not the host, and in_app_check asks for the host";
  case DependencyOutcome::PurchaseRecord:
  case DependencyOutcome::Purchases:
    return " is the host, but the user has bought something in it";
  }
  return "";
}

std::optional<std::string> copied(const Text& text) {
  return text ? std::optional(std::string(*text)) : std::nullopt;
}

std::string overridesOf(const Dependency& dependency) {
  std::string result;
  if (dependency.brick()) result += "; sets the banner";
  if (dependency.description()) result += "; sets the description";
  if (dependency.hasLink()) result += "; its link is not used";
  return result;
}

/// Writes each decision down as it falls.
class Account final : public Trace {
public:
  explicit Account(Preview& preview)
      : preview_(preview) {}

  void gate(const StableVersion* entry, bool passed) override {
    preview_.gate = passed;
    preview_.gateReason = entry
                              ? "the newest stable build is " + std::to_string(entry->buildNumber())
                              : "the document has no entry for this host";
  }
  void leftOut(const Candidate& candidate, const Exclusion& exclusion) override {
    preview_.leftOut.push_back(
        {copied(candidate.bundleID), nameOf(exclusion.reason), exclusion.by});
  }
  void considering(const Candidate& candidate) override {
    reasons_ = {std::to_string(candidate.priorityScore) + "  priority score"};
  }
  void dependency(const Dependency& dependency, DependencyOutcome outcome,
                  std::int64_t earned) override {
    const bool holds = outcome == DependencyOutcome::Holds;
    reasons_.push_back((holds && earned >= 0 ? "+" : "") + std::to_string(earned) + "  " +
                       formatted(copied(dependency.bundleID())) + meaningOf(outcome) +
                       (holds && dependency.inAppCheck() ? " and nothing is bought in it" : "") +
                       (holds ? overridesOf(dependency) : ""));
  }
  void built(const KVXAppRecommendation& record) override {
    reasonsOf_[&record] = std::move(reasons_);
  }
  void groupTaken(const KVXAppRecommendation& dropped, const KVXAppRecommendation& best) override {
    preview_.leftOut.push_back({dropped.bundleID(), "group", best.bundleID().value_or("")});
    auto& reasons = reasonsOf_[&best];
    reasons.push_back("best of the group " + best.group().value_or("") + ": ahead of " +
                      dropped.bundleID().value_or("") + " with " +
                      std::to_string(dropped.points()));
  }

  std::vector<std::string> reasonsOf(const KVXAppRecommendation& record) {
    return std::move(reasonsOf_[&record]);
  }

private:
  Preview& preview_;
  std::vector<std::string> reasons_;
  std::map<const KVXAppRecommendation*, std::vector<std::string>> reasonsOf_;
};

std::string iconBaseAt(const std::string& vendorBase) {
  return Endpoints(
             BuildConfiguration{
                 .vendorBase = vendorBase, .storeHost = {}, .publicKey = {}, .vendorSiteName = {}})
      .icon("");
}

} // namespace

Preview previewOf(const Value& document, const PreviewRequest& request) {
  const RecommenderDocument recommender(document);
  Preview result;
  Account account(result);
  const Value purchases = Value::Array(request.purchased.begin(), request.purchased.end());
  const Context context{.iconBase = iconBaseAt(request.vendorBase),
                        .host = request.host,
                        .isInstalled = [&](auto id) { return request.installed.contains(id); },
                        .purchaseRecord = [] { return false; },
                        .purchases = [&] { return purchases; },
                        .random = std::mt19937(request.seed),
                        .trace = &account};
  result.polite = isPolite(recommender, request.host);
  const auto list = recommend::recommendations(recommender, context);
  if (!list) return result;
  result.recommendations.emplace();
  for (const auto& record : *list)
    result.recommendations->push_back({record, account.reasonsOf(*record)});
  return result;
}

} // namespace wrenvale::kit
