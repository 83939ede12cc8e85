// The service's identity, its user agent and its launch.

#include "core/Service.h"

#include <utility>

#include "base/Guard.h"
#include "base/Log.h"
#include "core/Identity.h"
#include "core/PersistedKeys.h"
#include "platform/Platform.h"

namespace wrenvale {

Service::Service(const platform::Platform& platform, BuildConfiguration configuration)
    : _platform(platform)
    , _configuration(std::move(configuration))
    , _endpoints(_configuration)
    // A host that can keep nothing would have each of its runs be the first.
    , _firstRun(bundleID() &&
                platform.userDefaults.objectForKey(keys::kRecommenderLastVersion).isNull() &&
                platform.userDefaults.canBeKept())
    , _localeSuffix(localeSuffix(platform.locale))
    , _machineModel(platform.system.sysctlbyname("hw.model"))
    , _macAppstoreID(appstoreIDFromInfo(infoValue(platform.info, info::kAppstoreID))) {}

Service::~Service() = default;

std::optional<std::string> Service::bundleID() const {
  return guarded([&] { return stringValue(infoValue(_platform.info, info::kIdentifier)); });
}

std::int64_t Service::bundleVersion() const {
  return guarded([&] { return integerValue(infoValue(_platform.info, info::kVersion)); });
}

// The key that every per-build record is filed under: 0042 and 42.1 are both build "42".
std::string Service::versionString() const {
  return std::to_string(bundleVersion());
}

const std::string& Service::appName() const {
  guarded([&] {
    if (_hasAppName) return;
    // Asks the host's translator, which may ask for the name itself: so outside the lock.
    auto name = localizedName(_platform.info, _platform.application).value_or("");
    const std::lock_guard lock(_appNameMutex);
    if (_hasAppName) return;
    _appName = std::move(name);
    _hasAppName = true;
  });
  return _appName;
}

std::optional<std::string> Service::userAgent() const {
  return guarded([&] {
    return userAgentFor({appName(), bundleVersion(), _macAppstoreID}, _machineModel,
                        _platform.system);
  });
}

void Service::_setUserAgent(platform::URLRequest& request) const {
  if (auto agent = userAgent()) request.headers.emplace_back("User-Agent", std::move(*agent));
}

std::string Service::recommenderURL() const {
  return guarded([&] {
    const bool update = truthValue(_platform.userDefaults.objectForKey(keys::kShowUpdateWindow));
    const char* variant = update ? "_U" : _firstRun ? "_F" : "";
    return _endpoints.recommenderDocument(_localeSuffix, variant);
  });
}

void Service::launchHandler() {
  log::say("launch", [&] {
    if (!bundleID()) return std::string("no CFBundleIdentifier: nothing is kept, nobody is asked");
    return *bundleID() + ", build " + versionString() + (_firstRun ? ", first run" : "");
  });
  guarded([&] {
    _platform.application.registerFont("DroidSans-Regular", "ttf");
    fileEarlierStoreRating();
    _launchHandled = true;
    appName(); // here rather than in the background: a host's translator expects the main thread
    reset();
  });
}

} // namespace wrenvale
