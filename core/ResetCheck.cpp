// The service's remote reset: reading and writing around the decision.

#include "core/Service.h"

#include "base/Guard.h"
#include "base/Log.h"
#include "core/PersistedKeys.h"
#include "core/Reset.h"
#include "platform/Platform.h"

namespace wrenvale {

void Service::reset() {
  guarded([&] { _platform.globalQueue.async([this] { checkReset(); }); });
}

// Blocks its background thread for as long as the download takes. Reads the defaults once, before
// it writes any; all decisions follow from what was read.
void Service::checkReset() {
  auto& defaults = _platform.userDefaults;
  const ResetState state{.bundleID = bundleID(),
                         .bundleVersion = bundleVersion(),
                         .firstRun = _firstRun,
                         .showUpdateWindow =
                             truthValue(defaults.objectForKey(keys::kShowUpdateWindow)),
                         .lastVersion = defaults.objectForKey(keys::kRecommenderLastVersion),
                         .resetNumber = defaults.objectForKey(keys::kRecommenderResetNumber)};

  // Before the download, and even if that fails: the next launch is then no update any more.
  if (state.versionChanged())
    defaults.setObject(state.bundleVersion, keys::kRecommenderLastVersion);

  platform::URLRequest request{.url = _endpoints.resetDocument(_localeSuffix)};
  _setUserAgent(request);
  auto body = _platform.urlLoading.sendSynchronousRequest(request);
  if (!body) return;
  const auto document = _platform.json.JSONObjectWithData(std::move(*body));
  if (!document) return log::say("reset", [] { return "the answer is no JSON document"; });
  applyReset(resetOutcome(*document, state));
}

void Service::applyReset(const ResetOutcome& outcome) {
  log::say("reset", [&] {
    return std::string(outcome.resetNumber ? "a new generation" : "no new generation") +
           (outcome.showUpdateWindow ? "; the welcome window is owed"
                                     : "; no window is owed by it");
  });
  auto& mainQueue = _platform.mainQueue;
  const auto owe = [this] { oweUpdateWindow(); };
  if (outcome.resetNumber) {
    mainQueue.async([this, &mainQueue, outcome, owe] {
      _platform.userDefaults.setObject(*outcome.resetNumber, keys::kRecommenderResetNumber);
      if (outcome.showUpdateWindow) mainQueue.async(owe);
    });
  } else if (outcome.showUpdateWindow) {
    mainQueue.async(owe);
  }
}

void Service::oweUpdateWindow() {
  _platform.userDefaults.setObject(true, keys::kShowUpdateWindow);
  if (_welcomeTriggered) triggerWelcomeWindow();
}

} // namespace wrenvale
