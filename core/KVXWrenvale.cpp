#include <wrenvale/KVXWrenvale.h>

#include <utility>

#include "core/Service.h"

const std::int64_t kRateNeutral = 0;
const std::int64_t kRateDislike = 1;
const std::int64_t kRateLike = 2;

namespace wrenvale {

std::optional<std::string> KVXWrenvale::bundleID() const {
  return _service.bundleID();
}

std::int64_t KVXWrenvale::bundleVersion() const {
  return _service.bundleVersion();
}

const std::string& KVXWrenvale::appName() const {
  return _service.appName();
}

std::optional<std::string> KVXWrenvale::appstoreID() const {
  return _service.appstoreID();
}

std::optional<std::string> KVXWrenvale::userAgent() const {
  return _service.userAgent();
}

std::string KVXWrenvale::recommenderURL() const {
  return _service.recommenderURL();
}

std::optional<std::string> KVXWrenvale::encryptString(std::string_view string) const {
  return _service.encryptString(string);
}

bool KVXWrenvale::triggerWelcomeWindow() {
  return _service.triggerWelcomeWindow();
}

void KVXWrenvale::subscribeToNewsletter() {
  _service.subscribeToNewsletter();
}

void KVXWrenvale::setPurchaseRecord(std::function<bool()> purchaseRecord) {
  _service.setPurchaseRecord(std::move(purchaseRecord));
}

bool KVXWrenvale::triggerRatingWithCompletitionHandler(CompletitionHandler completitionHandler) {
  return _service.triggerRatingWithCompletitionHandler(std::move(completitionHandler));
}

bool KVXWrenvale::triggerRatingWithWindow(HostWindow* window,
                                          CompletitionHandler completitionHandler) {
  return _service.triggerRatingWithWindow(window, std::move(completitionHandler));
}

bool KVXWrenvale::triggerRatingWithWindow(HostWindow* window, std::int64_t count,
                                          CompletitionHandler completitionHandler) {
  return _service.triggerRatingWithWindow(window, count, std::move(completitionHandler));
}

bool KVXWrenvale::triggerRatingWithModalAlert() {
  return _service.triggerRatingWithModalAlert();
}

void KVXWrenvale::rateApp() {
  _service.rateApp();
}

void KVXWrenvale::openAppstoreForApp() {
  _service.openAppstoreForApp();
}

void KVXWrenvale::openSupportWebPage() {
  _service.openSupportWebPage();
}

void KVXWrenvale::openGeneralSupport() {
  _service.openGeneralSupport();
}

void KVXWrenvale::moreApps() {
  _service.moreApps();
}

void KVXWrenvale::followOnTwitter() {
  _service.followOnTwitter();
}

void KVXWrenvale::openKVXWebPage() {
  _service.openKVXWebPage();
}

bool KVXWrenvale::connecting() const {
  return _service.connecting();
}

void KVXWrenvale::setConnecting(bool connecting) {
  _service.setConnecting(connecting);
}

bool KVXWrenvale::showAtLaunch() const {
  return _service.showAtLaunch();
}

void KVXWrenvale::setShowAtLaunch(bool showAtLaunch) {
  _service.setShowAtLaunch(showAtLaunch);
}

} // namespace wrenvale
