// One session of the rate window: which view and face it shows, what the user did, and its end.
//
// The user likes or dislikes the host, then goes to the store or to support, or closes the window
// at any point. Every step is noted as an action code (rating/RatingRecords.h). The session ends
// once, whatever is pressed afterwards or in between; then the completition handler is called.
//
// Main thread only. Held by std::shared_ptr: it stays alive while one of its operations runs, so
// the completition handler may let go of it.

#ifndef WRENVALE_RATING_KVXRATEWINDOWCONTROLLER_H
#define WRENVALE_RATING_KVXRATEWINDOWCONTROLLER_H

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/Value.h"
#include "platform/RateWindow.h"

namespace wrenvale {

namespace platform {
struct Platform;
}

/// Where a session may lead the user.
struct RateWindowLinks {
  std::function<void()> openAppstoreForApp;
  std::function<void()> openSupportWebPage;
};

class KVXRateWindowController final : public platform::RateWindowDelegate,
                                      public std::enable_shared_from_this<KVXRateWindowController> {
public:
  using CompletitionHandler = std::function<void(KVXRateWindowController&)>;

  KVXRateWindowController(const platform::Platform& platform, RateWindowLinks links);

  /// Makes the window, hidden, with the neutral face and the like and dislike buttons, and begins
  /// the session. Once. False when there are no windows in this process.
  bool loadWindow();
  /// Null before loadWindow(), and when that failed. Lives as long as the controller.
  platform::RateWindow* window() const { return _window.get(); }

  /// Notes the button and does what it stands for. A button of a view that is not the present one
  /// (the other of two pressed at once) does nothing, nor does any button after the end.
  void buttonAction(platform::RateButton sender) override;
  /// Always true. Ends the session as dismissed if it has not ended yet.
  bool windowShouldClose() override;
  /// The like and dislike buttons have a face each. Leaving one changes the face only while it is
  /// that button's, since the next button may have been entered before.
  void mouseEntered(platform::RateButton button);
  void mouseExited(platform::RateButton button);
  void hovered(platform::RateButton button, bool inside) override {
    inside ? mouseEntered(button) : mouseExited(button);
  }

  /// Action codes in the order in which they happened.
  const std::vector<std::int64_t>& rateHistory() const { return _rateHistory; }
  /// When the window was loaded.
  Date date() const { return _date; }
  /// Whether a rating trigger opened the session.
  bool triggered() const { return _triggered; }
  void setTriggered(bool triggered) { _triggered = triggered; }
  /// The host's name as it translates it; nothing when it has none.
  const std::optional<std::string>& appName() const { return _appName; }
  /// Called once with this controller, when the session ends.
  void setCompletitionHandler(CompletitionHandler completitionHandler);

private:
  void _setView(platform::RateView view);
  void _update();
  void _addHistory(std::int64_t code);
  void _executeCompletitionHandler();
  void endWith(std::int64_t code, const std::function<void()>& link);

  const platform::Platform& _platform;
  const RateWindowLinks _links;

  std::int64_t _imageMode = 0; // kRateNeutral
  std::optional<platform::RateView> _currentView;
  std::vector<std::int64_t> _rateHistory;
  bool _triggered = false;
  bool _ended = false;
  Date _date{};
  CompletitionHandler _completitionHandler;
  std::optional<std::string> _appName;
  std::unique_ptr<platform::RateWindow> _window; // the last member: it knows this object
};

} // namespace wrenvale

#endif
