#include "rating/KVXRateWindowController.h"

#include <wrenvale/KVXWrenvale.h>

#include <utility>

#include "base/Guard.h"
#include "core/Identity.h"
#include "platform/Platform.h"
#include "rating/RatingPolicy.h"

namespace wrenvale {

using platform::RateButton;
using platform::RateView;

namespace {

// The view that holds the button.
RateView viewOf(RateButton button) {
  switch (button) {
  case RateButton::kAppstore:
    return RateView::kAppstore;
  case RateButton::kContact:
    return RateView::kContact;
  default:
    return RateView::kRate;
  }
}

// The mood, and so the face, that the button stands for.
std::int64_t moodOf(RateButton button) {
  if (button == RateButton::kLike) return kRateLike;
  return button == RateButton::kDislike ? kRateDislike : kRateNeutral;
}

} // namespace

KVXRateWindowController::KVXRateWindowController(const platform::Platform& platform,
                                                 RateWindowLinks links)
    : _platform(platform)
    , _links(std::move(links)) {}

bool KVXRateWindowController::loadWindow() {
  _appName = localizedName(_platform.info, _platform.application);
  _window = _platform.windows.makeRateWindow(*this, _appName.value_or(""));
  if (!_window) return false;
  _date = _platform.system.now();
  _update();
  _setView(RateView::kRate);
  return true;
}

void KVXRateWindowController::setCompletitionHandler(CompletitionHandler completitionHandler) {
  _completitionHandler = std::move(completitionHandler);
}

void KVXRateWindowController::_setView(RateView view) {
  _window->setView(view, _currentView.has_value());
  _currentView = view;
}

void KVXRateWindowController::_update() {
  _window->showImage("smile-" + std::to_string(_imageMode));
}

void KVXRateWindowController::mouseEntered(RateButton button) {
  const auto mood = moodOf(button);
  if (mood == kRateNeutral || mood == _imageMode) return;
  _imageMode = mood;
  guarded([&] { _update(); });
}

void KVXRateWindowController::mouseExited(RateButton button) {
  if (moodOf(button) != _imageMode) return;
  _imageMode = kRateNeutral;
  guarded([&] { _update(); });
}

void KVXRateWindowController::buttonAction(RateButton sender) {
  const auto self = shared_from_this();
  if (_ended || viewOf(sender) != _currentView) return;
  guarded([&] {
    switch (sender) {
    case RateButton::kLike:
      _addHistory(rating::kLiked);
      return _setView(RateView::kAppstore);
    case RateButton::kDislike:
      _addHistory(rating::kDisliked);
      return _setView(RateView::kContact);
    case RateButton::kAppstore:
      return endWith(rating::kRatedInStore, _links.openAppstoreForApp);
    case RateButton::kContact:
      return endWith(rating::kContactedSupport, _links.openSupportWebPage);
    }
  });
}

// Marks the end first: the link or the handler may run an event loop in which the user closes the
// window, and that must add nothing to the session.
void KVXRateWindowController::endWith(std::int64_t code, const std::function<void()>& link) {
  _ended = true;
  _addHistory(code);
  guarded(link);
  _executeCompletitionHandler();
  _window->close();
}

bool KVXRateWindowController::windowShouldClose() {
  const auto self = shared_from_this();
  if (std::exchange(_ended, true)) return true;
  guarded([&] { _addHistory(rating::kDismissed); });
  _executeCompletitionHandler();
  return true;
}

void KVXRateWindowController::_addHistory(std::int64_t code) {
  _rateHistory.push_back(code);
}

void KVXRateWindowController::_executeCompletitionHandler() {
  const auto handler = std::exchange(_completitionHandler, nullptr);
  if (handler) guarded([&] { handler(*this); });
}

} // namespace wrenvale
