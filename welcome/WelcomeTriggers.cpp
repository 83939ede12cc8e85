// The service's window with the maker's page: when it opens, in which of its two modes, and what
// its end changes.

#include "core/Service.h"

#include <utility>

#include "base/Guard.h"
#include "base/Log.h"
#include "core/Identity.h"
#include "core/PersistedKeys.h"
#include "platform/Platform.h"
#include "welcome/KVXRecommenderWindowController.h"

namespace wrenvale {

namespace {

class RecommenderDelegate final : public KVXRecommenderWindowControllerDelegate {
public:
  explicit RecommenderDelegate(Service& service)
      : service_(service) {}

  void
  kvxRecommenderWindowControllerDidFinish(KVXRecommenderWindowController& controller) override {
    service_.kvxRecommenderWindowControllerDidFinish(controller);
  }

private:
  Service& service_;
};

} // namespace

bool Service::showUpdateWindow() const {
  return guarded(
      [&] { return truthValue(_platform.userDefaults.objectForKey(keys::kShowUpdateWindow)); });
}

bool Service::triggerWelcomeWindow() {
  _welcomeTriggered = true;
  const bool owed = showUpdateWindow();
  log::say("welcome", [&] {
    return _firstRun ? "due: first run"
           : owed    ? "due: the server asked for it"
                     : "not due: not the first run, and not owed";
  });
  if (!_firstRun && !owed) return false;
  guarded([&] { openWelcomeWindow(); });
  return true;
}

// The recommendations are asked for again each time: an earlier attempt may have failed.
void Service::openWelcomeWindow() {
  if (!_recommenderWindowController) {
    const auto controller = loadRecommenderWindow(true, showUpdateWindow());
    if (!controller) return;
    const auto welcome = localizedText(_platform.application, "Welcome to");
    controller->window()->setTitle(welcome + " " + appName());
  }
  _setRecommendations();
}

void Service::subscribeToNewsletter() {
  guarded([&] {
    auto controller = _recommenderWindowController;
    if (!controller) {
      controller = loadRecommenderWindow(false, false);
      if (!controller) return;
      _setRecommendations();
    }
    _platform.application.activateIgnoringOtherApps(true);
    controller->window()->setTitle(localizedText(_platform.application, "Newsletter Subscription"));
    controller->showWindow();
  });
}

// The new controller, which is the service's from now on; null when there are no windows. It knows
// its mode and its delegate before its page begins to load.
std::shared_ptr<KVXRecommenderWindowController> Service::loadRecommenderWindow(bool displayAlerts,
                                                                               bool updating) {
  if (!_recommenderDelegate) _recommenderDelegate = std::make_shared<RecommenderDelegate>(*this);
  const auto controller =
      std::make_shared<KVXRecommenderWindowController>(*this, _platform, _endpoints);
  controller->setDelegate(_recommenderDelegate);
  controller->setDisplayAlerts(displayAlerts);
  controller->setUpdating(updating);
  _recommenderWindowController = controller;
  if (guarded([&] { return controller->loadWindow(); })) return controller;
  _recommenderWindowController = nullptr;
  return nullptr;
}

// The first list that arrives is the one that the window keeps.
void Service::recommendationsArrived(std::optional<RecommendationList> recommendations) {
  const auto controller = _recommenderWindowController;
  if (!controller || controller->recommendations()) return;
  controller->setRecommendations(std::move(recommendations));
}

// A welcome window counts as delivered even when its page never loaded and nobody saw it.
void Service::kvxRecommenderWindowControllerDidFinish(KVXRecommenderWindowController& controller) {
  guarded([&] {
    if (controller.displayAlerts())
      _platform.userDefaults.removeObjectForKey(keys::kShowUpdateWindow);
  });
  const auto held = _recommenderWindowController;
  if (held) guarded([&] { held->cleanup(); });
  _recommenderWindowController = nullptr;
}

} // namespace wrenvale
