// The window that shows the maker's page, as the welcome window (it may then show one alert) or for
// subscribing to the newsletter. The page is the same in both.
//
// The page loads hidden behind a progress indicator until it asks to be shown. It gets the
// recommendations once, when it has said that it is ready and the list is there, in either order. A
// link that the user clicks opens in the browser. A page that cannot be fetched closes the window,
// after telling the user when the window can be seen.
//
// Main thread only. Held by std::shared_ptr: it stays alive while one of its operations runs, so
// the delegate may let go of it. Whatever the page does after that has no effect.

#ifndef WRENVALE_WELCOME_KVXRECOMMENDERWINDOWCONTROLLER_H
#define WRENVALE_WELCOME_KVXRECOMMENDERWINDOWCONTROLLER_H

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/Recommendation.h"
#include "platform/RecommenderWindow.h"

namespace wrenvale {

namespace platform {
struct Platform;
}

class Endpoints;
class KVXRecommenderWindowController;
class Service;

class KVXRecommenderWindowControllerDelegate {
public:
  virtual ~KVXRecommenderWindowControllerDelegate() = default;

  /// The window is closing. Called once.
  virtual void
  kvxRecommenderWindowControllerDidFinish(KVXRecommenderWindowController& controller) = 0;
};

class KVXRecommenderWindowController final
    : public platform::RecommenderWindowDelegate,
      public std::enable_shared_from_this<KVXRecommenderWindowController> {
public:
  /// All three outlive the controller and the work that it starts in the background.
  KVXRecommenderWindowController(Service& service, const platform::Platform& platform,
                                 const Endpoints& endpoints);

  /// Makes the window, hidden, and begins to load the page. Once. False when there are no windows
  /// in this process.
  bool loadWindow();
  /// Null before loadWindow(), and when that failed. Lives as long as the controller.
  platform::RecommenderWindow* window() const { return _window.get(); }
  void showWindow();
  /// Ends the page. Called before the controller is let go of.
  void cleanup();

  /// Whether the host was updated, rather than installed.
  bool updating() const { return _updating; }
  void setUpdating(bool updating) { _updating = updating; }
  /// Whether this is the welcome window, which may show the thank-you alert.
  bool displayAlerts() const { return _displayAlerts; }
  void setDisplayAlerts(bool displayAlerts) { _displayAlerts = displayAlerts; }
  void setDelegate(std::weak_ptr<KVXRecommenderWindowControllerDelegate> delegate);

  /// Nothing until a list has arrived; an empty list is one that has.
  const std::optional<RecommendationList>& recommendations() const { return _recommendations; }
  void setRecommendations(std::optional<RecommendationList> recommendations);

  // What the page calls (welcome/ScriptBridge.h).

  void javascript_ready();
  void javascript_log(const Value&) {}
  void javascript_beep();
  void javascript_showWindow();
  void javascript_setWidth(std::int64_t width, std::int64_t height);
  /// True when `address` is one and its delivery has begun; else the user is told. The network is
  /// not touched before this returns.
  bool javascript_subscribe(const Value& address);
  bool javascript_updating() const { return _updating; }
  std::string javascript_appName() const;
  void javascript_openAppstoreForApp();
  std::string javascript_bundleVersion() const;
  std::optional<std::string> javascript_bundleID() const;
  std::string javascript_countryCode() const;
  std::string javascript_languageCode() const;
  bool javascript_checkSelector(const Value& name) const;

  // What the window reports.

  void didClearWindowObject(std::string_view origin) override;
  std::optional<Value> invokeScriptMethod(std::string_view name,
                                          const std::vector<Value>& arguments) override;
  platform::PolicyDecision
  decidePolicyForNavigationAction(const platform::NavigationAction& action) override;
  void didFailProvisionalLoad(const platform::LoadError& error, bool isMainFrame) override;
  void windowWillClose() override;

private:
  void windowDidLoad();
  void _sendRecommendations();
  void _displayAlertIfPossible();
  void sendRecommendationsNow();
  void showInvalidAddress();
  void showFailure(const platform::LoadError& error);

  Service& _service;
  const platform::Platform& _platform;
  const Endpoints& _endpoints;

  bool _alertDisplayed = false;
  bool _recomendationsSent = false;
  bool _javascriptReady = false;
  bool _updating = false;
  bool _displayAlerts = false;
  bool _invalidAddressShown = false; // while its sheet is up
  bool _failureShown = false;
  std::weak_ptr<KVXRecommenderWindowControllerDelegate> _delegate;
  std::optional<RecommendationList> _recommendations;
  std::unique_ptr<platform::RecommenderWindow> _window; // the last member: it knows this object
};

} // namespace wrenvale

#endif
