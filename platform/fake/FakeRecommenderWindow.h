// Recommender windows without a screen or a web view: the test plays the page and the user, and
// reads what the window was told.

#ifndef WRENVALE_PLATFORM_FAKE_FAKERECOMMENDERWINDOW_H
#define WRENVALE_PLATFORM_FAKE_FAKERECOMMENDERWINDOW_H

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/RecommenderWindow.h"

namespace wrenvale::platform {

/// What there is to see of one window. Stays readable when the window itself is closed or
/// destroyed; what the page or the user does then reaches nobody.
struct FakeRecommenderWindow {
  using Arguments = std::vector<Value>;

  // The page.

  /// Begins to run its scripts, as each load in the main frame does.
  void startPage(std::string_view origin = "http://vendor.example");
  /// A script calls Recommender[name](arguments...): nothing when that is a script error.
  std::optional<Value> call(std::string_view name, const Arguments& arguments = {});
  /// Tries to go somewhere, in this window or in a new one.
  std::optional<PolicyDecision> navigate(const NavigationAction& action);
  std::optional<PolicyDecision> openWindow(const NavigationAction& action);
  void fail(bool isMainFrame = true);

  // The user.

  void pressClose();
  /// Answers the oldest sheet that is up, be it of an error or not; false when none is.
  bool answerSheet(int answer = kAlertDefaultReturn);

  RecommenderWindowDelegate* delegate = nullptr; ///< null once the window is closed or destroyed

  std::string title;
  bool backgroundWhite = false;
  bool webViewHidden = false;
  bool progressShown = false;
  bool webViewClosed = false;
  bool visible = false;
  int broughtForward = 0;
  std::function<void()> whenShown; ///< what happens as it comes to the front
  Frame frame{.x = 100, .y = 200, .width = 500, .height = 400};
  double titleBar = 22;                       ///< what decoration adds to the height
  std::vector<std::pair<Frame, bool>> frames; ///< all that were set, and whether animated

  int cachesEmptied = 0;
  std::string applicationName;                                        ///< of the user agent
  std::vector<std::pair<std::string, std::chrono::seconds>> requests; ///< all loads
  std::map<std::string, std::vector<ScriptMethod>, std::less<>> scriptObjects;
  std::vector<std::pair<std::string, Arguments>> calls; ///< functions of the page, in order

  std::vector<Alert> sheets;                      ///< all so far
  std::vector<std::function<void(int)>> handlers; ///< of the sheets that are up
};

class FakeRecommenderWindows : public RecommenderWindows {
public:
  std::unique_ptr<RecommenderWindow>
  makeRecommenderWindow(RecommenderWindowDelegate& delegate) override;

  /// The last window made; there must have been one.
  FakeRecommenderWindow& window() const { return *windows.back(); }

  std::vector<std::shared_ptr<FakeRecommenderWindow>> windows;
  bool hasScreen = true; ///< else there are no windows
};

} // namespace wrenvale::platform

#endif
