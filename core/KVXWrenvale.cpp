// The service's identity, its user agent and its launch.

#include <wrenvale/KVXWrenvale.h>

#include <wrenvale/HTMLAdditions.h>

#include "core/BuildConfiguration.h"
#include "core/Endpoints.h"
#include "core/Guard.h"
#include "core/Identity.h"
#include "core/PersistedKeys.h"
#include "core/UserAgent.h"
#include "platform/Platform.h"
#include "rating/RatingRecords.h"

const std::int64_t kRateNeutral = 0;
const std::int64_t kRateDislike = 1;
const std::int64_t kRateLike = 2;

namespace wrenvale {

KVXWrenvale::KVXWrenvale(const platform::Platform& platform, BuildConfiguration configuration)
    : _platform(platform)
    , _configuration(std::make_unique<const BuildConfiguration>(std::move(configuration)))
    , _endpoints(std::make_unique<const Endpoints>(*_configuration))
    // A host without an identifier keeps nothing, so each of its runs would be the first.
    , _firstRun(bundleID() &&
                platform.userDefaults.objectForKey(keys::kRecommenderLastVersion).isNull())
    , _loadQueue(platform.queues.makeSerialQueue())
    , _localeSuffix(localeSuffix(platform.locale))
    , _machineModel(platform.kernel.sysctlbyname("hw.model"))
    , _macAppstoreID(
          appstoreIDFromInfo(platform.mainBundle.objectForInfoDictionaryKey(info::kAppstoreID))) {}

KVXWrenvale::~KVXWrenvale() = default;

std::optional<std::string> KVXWrenvale::bundleID() const {
  return guarded([&] {
    return stringValue(_platform.mainBundle.objectForInfoDictionaryKey(info::kIdentifier));
  });
}

std::int64_t KVXWrenvale::bundleVersion() const {
  return guarded([&] {
    return integerValue(_platform.mainBundle.objectForInfoDictionaryKey(info::kVersion));
  });
}

// The key that every per-build record is filed under: 0042 and 42.1 are both build "42".
std::string KVXWrenvale::versionString() const {
  return std::to_string(bundleVersion());
}

const std::string& KVXWrenvale::appName() const {
  guarded([&] {
    std::call_once(_appNameOnce, [&] {
      _appName = localizedName(_platform.mainBundle, _platform.localization).value_or("");
    });
  });
  return _appName;
}

std::optional<std::string> KVXWrenvale::appstoreID() const {
  return _macAppstoreID;
}

std::optional<std::string> KVXWrenvale::userAgent() const {
  return guarded([&] {
    return userAgentFor({appName(), bundleVersion(), _macAppstoreID}, _machineModel,
                        _platform.kernel);
  });
}

void KVXWrenvale::_setUserAgent(platform::URLRequest& request) const {
  if (auto agent = userAgent()) request.headers.emplace_back("User-Agent", std::move(*agent));
}

std::string KVXWrenvale::recommenderURL() const {
  return guarded([&] {
    const bool update = truthValue(_platform.userDefaults.objectForKey(keys::kShowUpdateWindow));
    const char* variant = update ? "_U" : _firstRun ? "_F" : "";
    return _endpoints->recommenderDocument(_localeSuffix, variant);
  });
}

void KVXWrenvale::launchHandler() {
  guarded([&] {
    _platform.application.registerFont("DroidSans-Regular", "ttf");
    fileEarlierStoreRating();
    _launchHandled = true;
    reset();
  });
}

// A user who rated any earlier build in the store is not asked again for this one.
void KVXWrenvale::fileEarlierStoreRating() {
  const Value ratings = _platform.userDefaults.objectForKey(keys::kVersionRatings);
  if (rating::hasEntry(ratings, versionString()) || !rating::anyRatedInStore(ratings)) return;
  _storeRateHistory({rating::kRatedEarlierBuild}, _platform.clock.now(), false);
}

void KVXWrenvale::_storeRateHistory(const std::vector<std::int64_t>& history, Date withDate,
                                    bool triggered) {
  auto& defaults = _platform.userDefaults;
  const rating::Record record{history, triggered, withDate};
  defaults.setObject(
      rating::withRecord(defaults.objectForKey(keys::kVersionRatings), versionString(), record),
      keys::kVersionRatings);
}

} // namespace wrenvale
