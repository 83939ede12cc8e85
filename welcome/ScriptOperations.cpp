// The operations that the maker's page may call; ScriptBridge.h has their names.

#include <algorithm>
#include <utility>

#include "base/Guard.h"
#include "base/Log.h"
#include "core/Identity.h"
#include "core/Service.h"
#include "platform/Platform.h"
#include "welcome/KVXRecommenderWindowController.h"
#include "welcome/Newsletter.h"
#include "welcome/PagePolicy.h"
#include "welcome/ScriptBridge.h"

namespace wrenvale {

namespace {

// No key can encrypt as much, so the encryption refuses such an address either way; cut, it takes
// less memory while it waits.
constexpr std::size_t kLongestAddressKept = 10'000;

// Codes are ASCII.
std::string upperCased(std::string text) {
  const auto upper = [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; };
  std::transform(text.begin(), text.end(), text.begin(), upper);
  return text;
}

} // namespace

void KVXRecommenderWindowController::javascript_ready() {
  _javascriptReady = true;
  _sendRecommendations();
}

void KVXRecommenderWindowController::javascript_beep() {
  _platform.application.beep();
}

void KVXRecommenderWindowController::javascript_showWindow() {
  _platform.application.activateIgnoringOtherApps(true);
  _window->revealWebView();
  _window->makeKeyAndOrderFront();
  _displayAlertIfPossible();
}

void KVXRecommenderWindowController::javascript_setWidth(std::int64_t width, std::int64_t height) {
  const auto needed =
      _window->frameForContentSize(static_cast<double>(width), static_cast<double>(height));
  _window->setFrame(welcome::resizedAroundCentre(_window->frame(), needed.width, needed.height),
                    _window->isVisible());
  _displayAlertIfPossible();
}

bool KVXRecommenderWindowController::javascript_subscribe(const Value& address) {
  const auto* text = address.string();
  if (!text || !welcome::isEmailAddress(*text)) {
    log::say("page", [] { return "subscribe refused: not an email address"; });
    showInvalidAddress();
    return false;
  }
  _platform.globalQueue.async([text = text->substr(0, kLongestAddressKept), &service = _service,
                               &endpoints = _endpoints, &urlLoading = _platform.urlLoading] {
    welcome::deliverSubscription(text, service, endpoints, urlLoading);
  });
  return true;
}

// A script that keeps trying while the sheet is up does not pile up sheets.
void KVXRecommenderWindowController::showInvalidAddress() {
  if (std::exchange(_invalidAddressShown, true)) return;
  _window->beginSheet(welcome::invalidAddressAlert(_service.appName(), _platform.application),
                      [weak = weak_from_this()](int) {
                        if (const auto self = weak.lock()) self->_invalidAddressShown = false;
                      });
}

std::string KVXRecommenderWindowController::javascript_appName() const {
  return _service.appName();
}

void KVXRecommenderWindowController::javascript_openAppstoreForApp() {
  _service.openAppstoreForApp();
}

std::string KVXRecommenderWindowController::javascript_bundleVersion() const {
  return std::to_string(_service.bundleVersion());
}

std::optional<std::string> KVXRecommenderWindowController::javascript_bundleID() const {
  return _service.bundleID();
}

std::string KVXRecommenderWindowController::javascript_countryCode() const {
  return upperCased(countryOrFallback(_platform.locale));
}

// "EN" stands in for a missing list, whatever language the locale itself has.
std::string KVXRecommenderWindowController::javascript_languageCode() const {
  const auto languages = _platform.locale.preferredLanguages();
  return languages.empty() ? "EN" : upperCased(languages.front());
}

bool KVXRecommenderWindowController::javascript_checkSelector(const Value& name) const {
  const auto* selector = name.string();
  return selector && welcome::hasScriptOperation(*selector);
}

} // namespace wrenvale
