#include "welcome/KVXRecommenderWindowController.h"

#include <utility>

#include "base/Guard.h"
#include "base/JSONWriter.h"
#include "core/Endpoints.h"
#include "core/Identity.h"
#include "core/Service.h"
#include "platform/Platform.h"
#include "welcome/PagePolicy.h"
#include "welcome/ScriptBridge.h"
#include "welcome/ThankYouAlert.h"

namespace wrenvale {

namespace {

constexpr std::chrono::seconds kPageTimeout{60};

// Every answer but "Cancel" leads to the application.
void followAlert(const Recommendation& recommendation, int answer,
                 const platform::Platform& platform) {
  if (answer == platform::kAlertAlternateReturn) return;
  if (const auto destination = welcome::alertDestination(recommendation)) {
    platform.application.openURL(*destination);
  } else {
    platform.application.beep();
  }
}

} // namespace

KVXRecommenderWindowController::KVXRecommenderWindowController(Service& service,
                                                               const platform::Platform& platform,
                                                               const Endpoints& endpoints)
    : _service(service)
    , _platform(platform)
    , _endpoints(endpoints) {}

void KVXRecommenderWindowController::setDelegate(
    std::weak_ptr<KVXRecommenderWindowControllerDelegate> delegate) {
  _delegate = std::move(delegate);
}

bool KVXRecommenderWindowController::loadWindow() {
  _window = _platform.windows.makeRecommenderWindow(*this);
  if (!_window) return false;
  windowDidLoad();
  return true;
}

void KVXRecommenderWindowController::windowDidLoad() {
  _window->loadRequest({.url = _endpoints.newsletterPage(countryOrFallback(_platform.locale)),
                        .applicationName = applicationNameForUserAgent(
                            {_service.appName(), _service.bundleVersion(), _service.appstoreID()}),
                        .timeout = kPageTimeout});
}

void KVXRecommenderWindowController::showWindow() {
  if (_window) _window->makeKeyAndOrderFront();
}

void KVXRecommenderWindowController::cleanup() {
  if (_window) _window->close();
}

void KVXRecommenderWindowController::setRecommendations(
    std::optional<RecommendationList> recommendations) {
  const auto self = shared_from_this();
  _recommendations = std::move(recommendations);
  guarded([&] { _sendRecommendations(); });
  guarded([&] { _displayAlertIfPossible(); });
}

// Always in a later turn, also when called from one of the page's scripts.
void KVXRecommenderWindowController::_sendRecommendations() {
  _platform.mainQueue.async([weak = weak_from_this()] {
    if (const auto self = weak.lock()) self->sendRecommendationsNow();
  });
}

// Sends once: a page that does not define the function never gets the list.
void KVXRecommenderWindowController::sendRecommendationsNow() {
  if (_recomendationsSent || !_javascriptReady || !_recommendations) return;
  auto* page = _window ? _window->webView() : nullptr;
  if (!page) return;
  std::vector<Recommendation::Dictionary> dictionaries;
  for (const auto& recommendation : *_recommendations)
    dictionaries.push_back(recommendation->dictionaryRepresentation());
  _recomendationsSent =
      page->callWebScriptMethod("setRecommendations", {prettyPrintedJSON(dictionaries)});
}

// Tried again whenever one of its conditions may have come true.
void KVXRecommenderWindowController::_displayAlertIfPossible() {
  if (!_displayAlerts || _alertDisplayed || !_window || !_window->isVisible()) return;
  const auto recommendation =
      _recommendations ? welcome::firstWithAlert(*_recommendations) : nullptr;
  if (!recommendation) return;
  const auto alert =
      welcome::thankYouAlert(*recommendation, _updating, _service.appName(), _platform.application);
  _alertDisplayed = true;
  _window->beginSheet(alert, [recommendation, &platform = _platform](int answer) {
    guarded([&] { followAlert(*recommendation, answer, platform); });
  });
}

void KVXRecommenderWindowController::didClearWindowObject(std::string_view origin) {
  if (!_endpoints.mayReachHost(origin)) return;
  const auto self = shared_from_this();
  guarded([&] {
    if (auto* page = _window->webView())
      page->setScriptObject(welcome::kScriptObject, welcome::scriptMethods());
  });
}

std::optional<Value>
KVXRecommenderWindowController::invokeScriptMethod(std::string_view name,
                                                   const std::vector<Value>& arguments) {
  const auto self = shared_from_this();
  return guarded([&] { return welcome::performScriptOperation(*this, name, arguments); });
}

platform::PolicyDecision KVXRecommenderWindowController::decidePolicyForNavigationAction(
    const platform::NavigationAction& action) {
  const auto self = shared_from_this();
  const auto decision = welcome::decidePolicy(action);
  if (decision == platform::PolicyDecision::kNone)
    guarded([&] { _platform.application.openURL(action.url); });
  return decision;
}

void KVXRecommenderWindowController::didFailProvisionalLoad(const platform::LoadError& error,
                                                            bool isMainFrame) {
  const auto self = shared_from_this();
  if (!isMainFrame) return;
  guarded([&] {
    if (_window->isVisible()) {
      showFailure(error);
    } else {
      _window->close();
    }
  });
}

// A page that fails again and again gets no second sheet; the first one closes the window.
void KVXRecommenderWindowController::showFailure(const platform::LoadError& error) {
  if (std::exchange(_failureShown, true)) return;
  const platform::Alert alert{.title = _service.appName(),
                              .messageText = error.description,
                              .informativeText = error.advice,
                              .defaultButton = localizedText(_platform.application, "Ok")};
  _window->beginSheet(alert, [weak = weak_from_this()](int) {
    if (const auto self = weak.lock()) guarded([&] { self->_window->close(); });
  });
}

void KVXRecommenderWindowController::windowWillClose() {
  const auto self = shared_from_this();
  const auto delegate = _delegate.lock();
  if (delegate) guarded([&] { delegate->kvxRecommenderWindowControllerDidFinish(*this); });
}

} // namespace wrenvale
