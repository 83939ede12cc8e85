// The service behind KVXWrenvale: its state, and all of its operations.
//
// What belongs to a subject is defined in that subject's folder:
// recommend/RecommendationLoading.cpp, rating/RatingTriggers.cpp, welcome/WelcomeTriggers.cpp and
// menu/VendorLinks.cpp. The subjects know one another by this class alone. What
// <wrenvale/KVXWrenvale.h> says of an operation is not said again here.

#ifndef WRENVALE_CORE_SERVICE_H
#define WRENVALE_CORE_SERVICE_H

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <wrenvale/HostWindow.h>

#include "core/BuildConfiguration.h"
#include "core/Endpoints.h"
#include "core/Recommendation.h"

namespace wrenvale {

namespace platform {
struct Platform;
struct URLRequest;
} // namespace platform

struct ResetOutcome;
class KVXRateWindowController;
class KVXRecommenderWindowController;
class KVXRecommenderWindowControllerDelegate;

class Service {
public:
  using CompletitionHandler = std::function<void()>;

  /// `platform` outlives the service.
  Service(const platform::Platform& platform, BuildConfiguration configuration);
  ~Service();
  Service(const Service&) = delete;
  Service& operator=(const Service&) = delete;

  const platform::Platform& platform() const { return _platform; }
  std::string_view vendorSiteName() const { return _configuration.vendorSiteName; }

  /// What happens once the host has finished launching. Main thread, once.
  void launchHandler();

  // Who the host is, and what it says to the maker's server. Any thread.

  std::optional<std::string> bundleID() const;
  std::int64_t bundleVersion() const;
  const std::string& appName() const;
  std::optional<std::string> appstoreID() const { return _macAppstoreID; }
  std::optional<std::string> userAgent() const;
  std::string recommenderURL() const;
  std::optional<std::string> encryptString(std::string_view string) const;
  /// Puts userAgent(), when there is one, into the request's "User-Agent" field.
  void _setUserAgent(platform::URLRequest& request) const;
  /// What encrypts under the embedded public key; null when the encryption module is missing. Ends
  /// the process when the key does not import.
  std::function<std::optional<std::string>(std::string_view plaintext)> _importPublicKey() const;

  /// Asks the maker's server, in the background, whether the welcome window is owed again. Any
  /// thread.
  void reset();

  // recommend/. Any thread.

  /// Downloads the recommender document and makes the list of it, best first and one per group.
  /// Nothing when the download fails, the answer is no document, or this build of the host is not
  /// to show any. Blocks its background thread for as long as the download takes.
  std::optional<RecommendationList> _getRecommendations() const;
  /// Does that in the background, one after the other, and hands the result to
  /// recommendationsArrived().
  void _setRecommendations();
  /// Whether the application is installed; asks the system anew each time.
  bool _isAppInstalledWithBundleID(std::string_view bundleID) const;
  void setPurchaseRecord(std::function<bool()> purchaseRecord);

  // rating/. Main thread.

  bool triggerRatingWithCompletitionHandler(CompletitionHandler completitionHandler);
  bool triggerRatingWithWindow(HostWindow* window, CompletitionHandler completitionHandler);
  bool triggerRatingWithWindow(HostWindow* window, std::int64_t count,
                               CompletitionHandler completitionHandler);
  bool triggerRatingWithModalAlert();
  void rateApp();
  void openAppstoreForApp();
  /// Files one rating record for the present build: the session's action codes in order, and
  /// whether a trigger opened it.
  void _storeRateHistory(const std::vector<std::int64_t>& history, Date withDate, bool triggered);
  /// Shows the rate window without asking whether it should; brings it to the front, and does
  /// nothing with the arguments, when it is open. False when there is no window to show.
  bool _rateAppWithWindow(HostWindow* window, CompletitionHandler completitionHandler);

  // welcome/. Main thread.

  bool triggerWelcomeWindow();
  void subscribeToNewsletter();
  /// Hands the list to the window that is open, unless that one has a list already.
  void recommendationsArrived(std::optional<RecommendationList> recommendations);
  /// The window of the controller is closing: a welcome window is no longer owed.
  void kvxRecommenderWindowControllerDidFinish(KVXRecommenderWindowController& controller);

  // menu/. Main thread.

  void openSupportWebPage();
  void openGeneralSupport();
  void moreApps();
  void followOnTwitter();
  void openKVXWebPage();

  // Two switches for the host's own use; nothing reads them. Any thread.

  bool connecting() const { return _connecting; }
  void setConnecting(bool connecting) { _connecting = connecting; }
  bool showAtLaunch() const { return _showAtLaunch; }
  void setShowAtLaunch(bool showAtLaunch) { _showAtLaunch = showAtLaunch; }

private:
  std::string versionString() const;

  void checkReset();
  void applyReset(const ResetOutcome& outcome);
  void oweUpdateWindow();

  bool askPurchaseRecord() const;

  void fileEarlierStoreRating();
  bool mayAskForRating();
  void bringRateWindowForward();
  bool loadRateWindow(HostWindow* window, CompletitionHandler completitionHandler);
  void fileSession(const KVXRateWindowController& controller);
  bool askByAlert();

  bool showUpdateWindow() const;
  void openWelcomeWindow();
  std::shared_ptr<KVXRecommenderWindowController> loadRecommenderWindow(bool displayAlerts,
                                                                        bool updating);

  const platform::Platform& _platform;
  const BuildConfiguration _configuration;
  const Endpoints _endpoints;

  const bool _firstRun;
  const std::string _localeSuffix;
  const std::optional<std::string> _machineModel;
  const std::optional<std::string> _macAppstoreID;

  bool _launchHandled = false;
  bool _welcomeTriggered = false;
  std::shared_ptr<KVXRateWindowController> _rateWindowController; // null when no window is open
  bool _askingByAlert = false;
  std::shared_ptr<KVXRecommenderWindowControllerDelegate> _recommenderDelegate; // once needed
  std::shared_ptr<KVXRecommenderWindowController> _recommenderWindowController; // as above
  std::atomic<bool> _connecting = false;
  std::atomic<bool> _showAtLaunch = false;

  mutable std::mutex _purchaseRecordMutex;
  std::function<bool()> _purchaseRecord;

  mutable std::mutex _appNameMutex;
  mutable std::atomic<bool> _hasAppName = false;
  mutable std::string _appName; // constant once it is there
};

} // namespace wrenvale

#endif
