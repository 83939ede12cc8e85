// The service's recommendations: downloads the document, has it ranked, hands the list over.

#include "core/Service.h"

#include <iterator>
#include <utility>

#include "base/Guard.h"
#include "base/Log.h"
#include "core/PersistedKeys.h"
#include "platform/Platform.h"
#include "recommend/KVXAppRecommendation.h"
#include "recommend/Ranking.h"
#include "recommend/RecommenderDocument.h"

namespace wrenvale {

std::optional<RecommendationList> Service::_getRecommendations() const {
  return guarded([&]() -> std::optional<RecommendationList> {
    platform::URLRequest request{.url = recommenderURL()};
    _setUserAgent(request);
    auto body = _platform.urlLoading.sendSynchronousRequest(request);
    if (!body) return std::nullopt;
    auto document = _platform.json.JSONObjectWithData(std::move(*body));
    if (!document) {
      log::say("recommend", [] { return "the answer is no JSON document"; });
      return std::nullopt;
    }
    const recommend::Context context{
        .iconBase = _endpoints.icon(""),
        .host = {.bundleID = bundleID(), .bundleVersion = bundleVersion()},
        .isInstalled = [this](auto identifier) { return _isAppInstalledWithBundleID(identifier); },
        .purchaseRecord = [this] { return askPurchaseRecord(); },
        .purchases = [this] { return _platform.userDefaults.objectForKey(keys::kPurchases); },
        .random = [this] { return _platform.system.arc4random(); },
        .system = &_platform.system};
    auto list =
        recommend::recommendations(recommend::RecommenderDocument(std::move(*document)), context);
    log::say("recommend", [&] {
      return list ? std::to_string(list->size()) + " to recommend"
                  : "nothing: the document is not for this build of this host";
    });
    if (!list) return std::nullopt;
    return RecommendationList(std::move_iterator(list->begin()), std::move_iterator(list->end()));
  });
}

void Service::_setRecommendations() {
  guarded([&] {
    _platform.serialQueue.async([this] {
      _platform.mainQueue.async([this, list = _getRecommendations()]() mutable {
        recommendationsArrived(std::move(list));
      });
    });
  });
}

bool Service::_isAppInstalledWithBundleID(std::string_view bundleID) const {
  return _platform.installedApplications.URLForApplicationWithBundleIdentifier(bundleID)
      .has_value();
}

// Swaps, so that the old function is destroyed outside the lock.
void Service::setPurchaseRecord(std::function<bool()> purchaseRecord) {
  guarded([&] {
    const std::lock_guard lock(_purchaseRecordMutex);
    _purchaseRecord.swap(purchaseRecord);
  });
}

// Called outside the lock, since the host's function may take its time or set another one.
bool Service::askPurchaseRecord() const {
  return guarded([&] {
    std::unique_lock lock(_purchaseRecordMutex);
    const auto purchaseRecord = _purchaseRecord;
    lock.unlock();
    return purchaseRecord && purchaseRecord();
  });
}

} // namespace wrenvale
