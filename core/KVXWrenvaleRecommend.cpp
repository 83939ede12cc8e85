// The service's recommendations: fetching the document, and asking and publishing around the
// decisions of recommend/.

#include <wrenvale/KVXWrenvale.h>

#include <iterator>
#include <utility>

#include "core/Endpoints.h"
#include "core/Guard.h"
#include "core/PersistedKeys.h"
#include "core/Recommendation.h"
#include "platform/Platform.h"
#include "recommend/KVXAppRecommendation.h"
#include "recommend/RecommenderDocument.h"
#include "recommend/Recommending.h"
#include "welcome/KVXRecommenderWindowController.h"

namespace wrenvale {

std::optional<KVXWrenvale::Recommendations> KVXWrenvale::_getRecommendations() const {
  return guarded([&]() -> std::optional<Recommendations> {
    platform::URLRequest request{.url = recommenderURL()};
    _setUserAgent(request);
    auto body = _platform.urlLoading.sendSynchronousRequest(request);
    if (!body) return std::nullopt;
    auto document = _platform.json.JSONObjectWithData(std::move(*body)).object;
    if (!document) return std::nullopt;
    const recommend::Context context{
        .iconBase = _endpoints->icon(""),
        .host = {.bundleID = bundleID(), .bundleVersion = bundleVersion()},
        .isInstalled = [this](auto identifier) { return _isAppInstalledWithBundleID(identifier); },
        .purchaseRecord = [this] { return askPurchaseRecord(); },
        .purchases = [this] { return _platform.userDefaults.objectForKey(keys::kPurchases); },
        .random = _platform.random,
        .fileManager = &_platform.fileManager};
    auto list =
        recommend::recommendations(recommend::RecommenderDocument(std::move(*document)), context);
    if (!list) return std::nullopt;
    return Recommendations(std::move_iterator(list->begin()), std::move_iterator(list->end()));
  });
}

void KVXWrenvale::_setRecommendations() {
  guarded([&] {
    _loadQueue->async([this] {
      _platform.queues.mainQueue().async(
          [this, list = _getRecommendations()]() mutable { publish(std::move(list)); });
    });
  });
}

// The first list that arrives is the one that the window keeps.
void KVXWrenvale::publish(std::optional<Recommendations> recommendations) {
  const auto controller = _recommenderWindowController;
  if (!controller || controller->recommendations()) return;
  controller->setRecommendations(std::move(recommendations));
}

bool KVXWrenvale::_isAppInstalledWithBundleID(std::string_view bundleID) const {
  return _platform.installedApplications.URLForApplicationWithBundleIdentifier(bundleID)
      .has_value();
}

// Swapped, so that whatever the old function holds is let go of outside the lock.
void KVXWrenvale::setPurchaseRecord(std::function<bool()> purchaseRecord) {
  guarded([&] {
    const std::lock_guard lock(_purchaseRecordMutex);
    _purchaseRecord.swap(purchaseRecord);
  });
}

// Called outside the lock, since the host's function may take its time or set another one.
bool KVXWrenvale::askPurchaseRecord() const {
  return guarded([&] {
    std::unique_lock lock(_purchaseRecordMutex);
    const auto purchaseRecord = _purchaseRecord;
    lock.unlock();
    return purchaseRecord && purchaseRecord();
  });
}

} // namespace wrenvale
