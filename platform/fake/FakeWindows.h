// Windows without a screen: the test reads what they show and does what a user or a page would do.

#ifndef WRENVALE_PLATFORM_FAKE_FAKEWINDOWS_H
#define WRENVALE_PLATFORM_FAKE_FAKEWINDOWS_H

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/Windows.h"

namespace wrenvale::platform {

/// What there is to see of one rate window. Stays readable when the window itself is destroyed;
/// what the user does to it then reaches nobody.
struct FakeRateWindow {
  /// Presses a button, be its view the present one or on its way out.
  void press(RateButton button);
  /// Moves the pointer into or out of a button.
  void hover(RateButton button);
  void leave(RateButton button);
  /// Asks the delegate, and closes the window when it agrees.
  void pressClose();

  RateWindowDelegate* delegate = nullptr; ///< null once the window is destroyed
  bool visible = false;
  bool modal = false;
  int broughtForward = 0;
  HostWindow* parent = nullptr;
  std::string appName;
  std::string face;                             ///< name of the image shown; empty when none is
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

/// What there is to see of one recommender window. Stays readable when the window itself is closed
/// or destroyed; what the page or the user does then reaches nobody.
struct FakeRecommenderWindow {
  using Arguments = std::vector<Value>;

  // The page.

  /// Begins to run its scripts, as each load in the main frame does.
  void startPage(std::string_view origin = "http://vendor.example");
  /// A script calls Recommender[name](arguments...): nothing when that is a script error.
  std::optional<Value> call(std::string_view name, const Arguments& arguments = {});
  /// Tries to go somewhere, in this window or in a new one.
  std::optional<PolicyDecision> navigate(const NavigationAction& action);
  void fail(bool isMainFrame = true);

  // The user.

  void pressClose();
  /// Answers the oldest sheet that is up, be it of an error or not; false when none is.
  bool answerSheet(int answer = kAlertDefaultReturn);

  RecommenderWindowDelegate* delegate = nullptr; ///< null once the window is closed or destroyed

  std::string title;
  bool webViewRevealed = false;
  bool webViewClosed = false;
  bool visible = false;
  int broughtForward = 0;
  std::function<void()> whenShown; ///< what happens as it comes to the front
  Frame frame{.x = 100, .y = 200, .width = 500, .height = 400};
  double titleBar = 22;                       ///< what decoration adds to the height
  std::vector<std::pair<Frame, bool>> frames; ///< all that were set, and whether animated

  std::vector<PageRequest> requests; ///< all loads
  std::map<std::string, std::vector<ScriptMethod>, std::less<>> scriptObjects;
  std::vector<std::pair<std::string, Arguments>> calls; ///< functions of the page, in order

  std::vector<Alert> sheets;                      ///< all so far
  std::vector<std::function<void(int)>> handlers; ///< of the sheets that are up
};

class FakeWindows : public Windows {
public:
  /// Drops the completions of animations that never arrived: they may hold their own overlay.
  ~FakeWindows() override;

  std::unique_ptr<RateWindow> makeRateWindow(RateWindowDelegate& delegate,
                                             std::string_view appName) override;
  std::unique_ptr<DimmingOverlay> makeOverlay(HostWindow* parent) override;
  std::unique_ptr<RecommenderWindow>
  makeRecommenderWindow(RecommenderWindowDelegate& delegate) override;
  std::optional<int> runModal(const Alert& alert, const std::function<void()>& willShow) override;

  /// The host deletes a window of its own: the overlay over it goes, the rate window over it
  /// closes.
  void deleteParent(HostWindow* parent);

  /// The last one made; there must have been one.
  FakeRateWindow& rateWindow() const { return *rateWindows.back(); }
  FakeRecommenderWindow& recommenderWindow() const { return *recommenderWindows.back(); }

  bool hasScreen = true; ///< else there are no windows
  std::vector<std::shared_ptr<FakeRateWindow>> rateWindows;
  std::vector<std::shared_ptr<FakeOverlay>> overlays;
  std::vector<std::shared_ptr<FakeRecommenderWindow>> recommenderWindows;
  std::vector<Alert> alerts; ///< every alert, in order

  std::set<std::string, std::less<>> missingImages; ///< resources that are not there
  /// What happens during the next modal run of a rate window; used up by it. A run whose script
  /// leaves the window open ends all the same, as when the host quits.
  std::function<void()> duringModal;
  std::function<void()> duringAlert;  ///< what happens while an alert is up; may set `answer`
  int answer = kAlertAlternateReturn; ///< to every alert
};

} // namespace wrenvale::platform

#endif
