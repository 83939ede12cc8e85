// Rate windows without a screen: the test reads what a window shows and does what a user would do.

#ifndef WRENVALE_PLATFORM_FAKE_FAKERATEWINDOW_H
#define WRENVALE_PLATFORM_FAKE_FAKERATEWINDOW_H

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/RateWindow.h"

namespace wrenvale::platform {

/// What there is to see of one window. Stays readable when the window itself is destroyed; what the
/// user does to it then reaches nobody.
struct FakeRateWindow {
  /// Presses a button, be its view the present one or on its way out.
  void press(RateButton button);
  /// Moves the pointer into or out of a button's tracking area, where there is one.
  void hover(RateButton button);
  void leave(RateButton button);
  /// Asks the delegate, and closes the window when it agrees.
  void pressClose();

  std::string face() const; ///< name of the image shown; empty when none is

  RateWindowDelegate* delegate = nullptr; ///< null once the window is destroyed
  bool visible = false;
  bool modal = false;
  int broughtForward = 0;
  HostWindow* parent = nullptr;
  std::string appName;
  std::map<std::int64_t, std::string> images; ///< names by mood
  std::int64_t mood = -1;                     ///< the last one to be shown
  std::map<RateButton, std::int64_t> trackingAreas;
  std::vector<std::pair<RateView, bool>> views; ///< all so far, and whether each was pushed in
};

/// What there is to see of one overlay; stays readable when it is destroyed.
struct FakeOverlay {
  /// Lets the animation under way arrive.
  void finish();

  HostWindow* parent = nullptr;
  bool present = true;        ///< not destroyed yet
  std::vector<double> alphas; ///< every opacity it was sent to, in order
  std::function<void()> completion;
};

class FakeRateWindows : public RateWindows {
public:
  /// Drops the completions of animations that never arrived: they may hold their own overlay.
  ~FakeRateWindows() override;

  std::unique_ptr<RateWindow> makeRateWindow(RateWindowDelegate& delegate) override;
  std::unique_ptr<DimmingOverlay> makeOverlay(HostWindow* parent) override;

  /// The host deletes a window of its own: the overlay over it goes, the rate window over it
  /// closes.
  void deleteParent(HostWindow* parent);

  /// The last window made; there must have been one.
  FakeRateWindow& window() const { return *windows.back(); }

  std::vector<std::shared_ptr<FakeRateWindow>> windows;
  std::vector<std::shared_ptr<FakeOverlay>> overlays;

  /// What happens during the next modal run; used up by it. A run whose script leaves the window
  /// open ends all the same, as when the host quits.
  std::function<void()> duringModal;
  bool hasScreen = true;                            ///< else there are no windows
  std::set<std::string, std::less<>> missingImages; ///< resources that are not there
};

} // namespace wrenvale::platform

#endif
