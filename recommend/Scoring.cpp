#include "recommend/Scoring.h"

#include "recommend/Eligibility.h"
#include "recommend/KVXAppRecommendation.h"
#include "recommend/RecommenderDocument.h"
#include "recommend/Trace.h"
#include "recommend/WhiteSpace.h"

namespace wrenvale::recommend {

namespace {

std::int64_t wrappingSum(std::int64_t a, std::int64_t b) {
  return static_cast<std::int64_t>(static_cast<std::uint64_t>(a) + static_cast<std::uint64_t>(b));
}

// The purchase record is asked first; when it says yes, "Purchases" is not looked at.
DependencyOutcome outcomeOfInAppCheck(std::string_view identifier, const Context& context) {
  if (!context.host.is(identifier)) return DependencyOutcome::NotTheHost;
  if (context.purchaseRecord && context.purchaseRecord()) return DependencyOutcome::PurchaseRecord;
  if (context.purchases && context.purchases().size() > 0) return DependencyOutcome::Purchases;
  return DependencyOutcome::Holds;
}

void applyOverrides(const Dependency& dependency, Candidate& candidate) {
  if (auto brick = dependency.brick()) candidate.brick = std::move(*brick);
  if (auto description = dependency.description()) candidate.description = std::move(*description);
}

// The points of all dependencies that hold; each of them may also replace texts of the record.
std::int64_t bonusOf(Candidate& candidate, const Context& context) {
  std::int64_t bonus = 0;
  for (const Dependency& dependency : candidate.dependencies) {
    const auto outcome = dependencyOutcome(dependency, context);
    const bool holds = outcome == DependencyOutcome::Holds;
    const std::int64_t earned = holds ? dependency.score() : 0;
    if (context.trace) context.trace->dependency(dependency, outcome, earned);
    bonus = wrappingSum(bonus, earned);
    if (holds) applyOverrides(dependency, candidate);
  }
  return bonus;
}

std::size_t bytesOfText(const Candidate& candidate) {
  std::size_t bytes = 0;
  for (const Text* text :
       {&candidate.bundleID, &candidate.name, &candidate.brick, &candidate.media,
        &candidate.description, &candidate.linkName, &candidate.link, &candidate.group,
        &candidate.alertText, &candidate.alertLink, &candidate.alertLinkName})
    if (*text) bytes += (**text).size();
  return bytes;
}

std::shared_ptr<KVXAppRecommendation> recordOf(const Candidate& candidate, bool polite,
                                               const Context& context) {
  const auto icon = candidate.icon ? *candidate.icon : "(null)";
  const std::string iconURL = std::string(context.iconBase).append(icon);
  auto record = std::make_shared<KVXAppRecommendation>(context.system);
  record->reserveText(bytesOfText(candidate) + iconURL.size());
  record->setBundleID(candidate.bundleID);
  record->setName(candidate.name);
  record->setBrickURL(candidate.brick);
  record->setMediaURL(candidate.media);
  record->setDescr(candidate.description);
  record->setLinkName(candidate.linkName);
  record->setIconURL(iconURL);
  record->setLink(candidate.link);
  record->setGroup(candidate.group);
  if (polite) return record;
  record->setAlertText(candidate.alertText);
  record->setAlertLink(candidate.alertLink);
  record->setAlertButtonName(candidate.alertLinkName);
  return record;
}

} // namespace

DependencyOutcome dependencyOutcome(const Dependency& dependency, const Context& context) {
  const Text bundleID = dependency.bundleID();
  const auto identifier = bundleID ? trimmed(*bundleID) : std::string_view();
  if (!bundleID || !context.isInstalled || !context.isInstalled(identifier))
    return DependencyOutcome::NotInstalled;
  return dependency.inAppCheck() ? outcomeOfInAppCheck(identifier, context)
                                 : DependencyOutcome::Holds;
}

std::shared_ptr<KVXAppRecommendation> buildApp(Candidate candidate, bool polite,
                                               const Context& context) {
  if (const auto exclusion = shouldExclude(candidate, context.host, context.isInstalled)) {
    if (context.trace) context.trace->leftOut(candidate, *exclusion);
    return nullptr;
  }
  if (context.trace) context.trace->considering(candidate);
  const auto points = wrappingSum(bonusOf(candidate, context), candidate.priorityScore);
  auto record = recordOf(candidate, polite, context);
  record->setPoints(points);
  if (context.trace) context.trace->built(*record);
  return record;
}

} // namespace wrenvale::recommend
