// The service's rating prompts: the triggers, the rate window's sessions and the alert.

#include "core/Service.h"

#include <utility>

#include "base/Guard.h"
#include "base/Log.h"
#include "core/Identity.h"
#include "core/PersistedKeys.h"
#include "platform/Platform.h"
#include "rating/KVXRateWindowController.h"
#include "rating/RatingPolicy.h"

namespace wrenvale {

namespace {

constexpr double kDimmed = 0.3;

// Outlives the session that made it: its own last animation holds it.
using SharedOverlay = std::shared_ptr<std::unique_ptr<platform::DimmingOverlay>>;

SharedOverlay dim(platform::Windows& windows, HostWindow* window) {
  const auto overlay = std::make_shared<SharedOverlay::element_type>(windows.makeOverlay(window));
  if (*overlay) (*overlay)->animateAlpha(kDimmed, {});
  return overlay;
}

// The dimming does not fade out: it stays to the end. The overlay is destroyed in a later turn,
// never from within its own call.
void removeAfterAnimation(const SharedOverlay& overlay, platform::Queue& mainQueue) {
  if (!*overlay) return;
  (*overlay)->animateAlpha(kDimmed, [overlay, &mainQueue] {
    guarded([&] { mainQueue.async([overlay] { overlay->reset(); }); });
  });
}

bool mayNotAsk(const char* reason) {
  log::say("rating", [&] { return std::string("not due: ") + reason; });
  return false;
}

} // namespace

// A user who rated any earlier build in the store is not asked again for this one.
void Service::fileEarlierStoreRating() {
  const Value ratings = _platform.userDefaults.objectForKey(keys::kVersionRatings);
  if (rating::hasEntry(ratings, versionString()) || !rating::anyRatedInStore(ratings)) return;
  _storeRateHistory({rating::kRatedEarlierBuild}, _platform.system.now(), false);
}

void Service::_storeRateHistory(const std::vector<std::int64_t>& history, Date withDate,
                                bool triggered) {
  auto& defaults = _platform.userDefaults;
  const rating::Record record{history, triggered, withDate};
  defaults.setObject(
      rating::withRecord(defaults.objectForKey(keys::kVersionRatings), versionString(), record),
      keys::kVersionRatings);
}

// A trigger may come before the launch is handled; it then does the part of it that decides.
bool Service::mayAskForRating() {
  return guarded([&] {
    if (!bundleID()) return mayNotAsk("the host has no CFBundleIdentifier");
    if (!_launchHandled) fileEarlierStoreRating();
    const Value ratings = _platform.userDefaults.objectForKey(keys::kVersionRatings);
    if (rating::hasEntry(ratings, versionString())) return mayNotAsk("this build is on record");
    if (!_platform.userDefaults.canBeKept()) return mayNotAsk("the answer could not be kept");
    log::say("rating", [] { return "due: nothing is on record for this build"; });
    return true;
  });
}

bool Service::triggerRatingWithCompletitionHandler(CompletitionHandler completitionHandler) {
  return triggerRatingWithWindow(nullptr, std::move(completitionHandler));
}

// A session over a parent has ended when this could mark it, so its record says "not triggered". A
// session that was already open, from the Help menu, is marked.
bool Service::triggerRatingWithWindow(HostWindow* window, CompletitionHandler completitionHandler) {
  if (!mayAskForRating()) return false;
  if (!_rateAppWithWindow(window, std::move(completitionHandler))) return false;
  if (_rateWindowController) _rateWindowController->setTriggered(true);
  return true;
}

// The counters are those from before the session, whatever is counted while it runs.
bool Service::triggerRatingWithWindow(HostWindow* window, std::int64_t count,
                                      CompletitionHandler completitionHandler) {
  bool shown = false;
  guarded([&] {
    const auto version = versionString();
    const Value counters = _platform.userDefaults.objectForKey(keys::kVersionCounters);
    const auto calls = rating::counter(counters, version);
    log::say("rating", [&] {
      return "counted trigger: call " + std::to_string(calls) + ", asks at " +
             std::to_string(count);
    });
    if (calls == count) shown = triggerRatingWithWindow(window, std::move(completitionHandler));
    _platform.userDefaults.setObject(rating::withNextCount(counters, version),
                                     keys::kVersionCounters);
  });
  return shown;
}

bool Service::triggerRatingWithModalAlert() {
  if (_askingByAlert || !mayAskForRating()) return false;
  _askingByAlert = true;
  const bool shown = guarded([&] { return askByAlert(); });
  _askingByAlert = false;
  return shown;
}

bool Service::askByAlert() {
  _platform.application.activateIgnoringOtherApps(true);
  const auto alert = rating::ratingAlert(stringValue(infoValue(_platform.info, info::kName)));
  // The host may crash while the alert is up.
  const auto remember = [this] {
    guarded([&] {
      _platform.userDefaults.setObject(versionString(), keys::kRateVersion);
      _platform.userDefaults.synchronize();
    });
  };
  const auto answer = _platform.windows.runModal(alert, remember);
  if (!answer) return false;
  if (*answer == platform::kAlertDefaultReturn) openAppstoreForApp();
  guarded(
      [&] { _storeRateHistory(rating::historyForAnswer(*answer), _platform.system.now(), true); });
  return true;
}

void Service::openAppstoreForApp() {
  guarded([&] { _platform.application.openURL(_endpoints.storePage(_macAppstoreID)); });
}

void Service::rateApp() {
  _rateAppWithWindow(nullptr, nullptr);
}

bool Service::_rateAppWithWindow(HostWindow* window, CompletitionHandler completitionHandler) {
  return guarded([&] {
    if (_rateWindowController) {
      bringRateWindowForward();
      return true;
    }
    if (!loadRateWindow(window, std::move(completitionHandler))) return false;
    const auto controller = _rateWindowController; // the session's end lets go of it
    _platform.application.activateIgnoringOtherApps(true);
    if (window) controller->window()->attachToParent(window);
    controller->window()->makeKeyAndOrderFront();
    if (!window) return true;
    controller->window()->runModal();
    controller->windowShouldClose(); // where the loop ended without the session, as when quitting
    return true;
  });
}

void Service::bringRateWindowForward() {
  _platform.application.activateIgnoringOtherApps(true);
  if (auto* window = _rateWindowController->window()) window->makeKeyAndOrderFront();
}

bool Service::loadRateWindow(HostWindow* window, CompletitionHandler completitionHandler) {
  const auto overlay = dim(_platform.windows, window);
  _rateWindowController = std::make_shared<KVXRateWindowController>(
      _platform, RateWindowLinks{.openAppstoreForApp = [this] { openAppstoreForApp(); },
                                 .openSupportWebPage = [this] { openSupportWebPage(); }});
  const bool loaded = guarded([&] {
    _rateWindowController->setCompletitionHandler(
        [this, overlay, completitionHandler = std::move(completitionHandler)](
            KVXRateWindowController& controller) {
          guarded([&] { fileSession(controller); });
          _rateWindowController = nullptr;
          guarded([&] { removeAfterAnimation(overlay, _platform.mainQueue); });
          if (completitionHandler) completitionHandler();
        });
    return _rateWindowController->loadWindow();
  });
  if (!loaded) _rateWindowController = nullptr;
  return loaded;
}

void Service::fileSession(const KVXRateWindowController& controller) {
  _storeRateHistory(controller.rateHistory(), controller.date(), controller.triggered());
}

} // namespace wrenvale
