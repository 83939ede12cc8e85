// Wrenvale's one service object.
//
// A host links the library and says who it is in its Info dictionary; nothing else is needed for
// the framework to start. The library creates its service when it is loaded, before `main`, and
// begins its work when the host's event loop starts. Everything here fails silently: an operation
// that cannot do its work returns nothing or false, never throws, and leaves the host as it was.
//
// Info dictionary keys read: "CFBundleIdentifier" (string), "CFBundleVersion" (string or number),
// "CFBundleName" (string, may be translated), "Appstore ID" (number).

#ifndef WRENVALE_KVXWRENVALE_H
#define WRENVALE_KVXWRENVALE_H

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include <wrenvale/Export.h>
#include <wrenvale/HostWindow.h>

extern "C" {

/// The version of the framework: 1.0.
WRENVALE_EXPORT extern const double WrenvaleVersionNumber;
/// The version as a what-string: "@(#)PROGRAM:Wrenvale  PROJECT:<project>-1\n".
WRENVALE_EXPORT extern const char WrenvaleVersionString[];

/// Moods of the rate window: which face it shows. These are not the action codes of the rating
/// records, which count like and dislike the other way round.
WRENVALE_EXPORT extern const std::int64_t kRateNeutral; ///< 0
WRENVALE_EXPORT extern const std::int64_t kRateDislike; ///< 1
WRENVALE_EXPORT extern const std::int64_t kRateLike;    ///< 2

} // extern "C"

namespace wrenvale {

class Service;

class WRENVALE_EXPORT KVXWrenvale {
public:
  /// The one instance of this process; lives until the process ends. Any thread.
  static KVXWrenvale& sharedInstance();

  KVXWrenvale(const KVXWrenvale&) = delete;
  KVXWrenvale& operator=(const KVXWrenvale&) = delete;

  // Who the host is. Any thread.

  /// The host's "CFBundleIdentifier"; nothing when it has none.
  std::optional<std::string> bundleID() const;
  /// The host's build number: the leading decimal digits of "CFBundleVersion" ("3.1" is 3, "0042"
  /// is 42), 0 when there is none.
  std::int64_t bundleVersion() const;
  /// The host's name: "CFBundleName" as the host translates it, else as it stands, else "". Fixed
  /// at the first call.
  const std::string& appName() const;
  /// The host's number in the application store, as decimal text; nothing when it has none.
  std::optional<std::string> appstoreID() const;

  // What the host says to the maker's server. Any thread.

  /// How the framework's own downloads identify the host and the machine, rebuilt on every call:
  /// "Photo%20Tool/1204 123456789 Darwin/14.5.0 (x86_64) (MacBookPro11%2C1)". Nothing on a system
  /// too old for it or without a kernel release.
  std::optional<std::string> userAgent() const;
  /// Where the recommender document for this user and this kind of launch is.
  std::string recommenderURL() const;
  /// The text encrypted under the maker's public key (RSA, PKCS #1 v1.5), as base64 without line
  /// breaks. Nothing for more than 117 bytes of UTF-8, or when the encryption module is not
  /// installed. A public key that does not import ends the process with status 255: such a build is
  /// broken beyond recovery. Not on the main thread: the first call loads a library.
  std::optional<std::string> encryptString(std::string_view string) const;

  // The window with the maker's page. Main thread only. There is one at a time, and none in a
  // process without windows.

  /// Asks for the welcome window. True when it is due: on the host's first run, and when the
  /// maker's server has asked installed copies to show it again. The window appears once its page
  /// has loaded and asks to be shown; one that is open already is left as it is. Closing it settles
  /// what the server asked for, and so does a page that cannot be fetched. The request is
  /// remembered for this run, so that an answer of the server that comes later can still open the
  /// window.
  bool triggerWelcomeWindow();
  /// Opens the window for subscribing to the newsletter, or brings the open one to the front.
  void subscribeToNewsletter();

  // What the host knows and the framework cannot.

  /// Sets the question whether the user has bought anything in the host, in place of the one
  /// before; an empty one, as at first, answers no. It decides which other applications are
  /// recommended, and is called on a background thread, any number of times; a call under way may
  /// still end after this returns. An exception that it throws counts as no. Any thread.
  void setPurchaseRecord(std::function<bool()> purchaseRecord);

  // Asking for a rating. Main thread only.
  //
  // The triggers ask at moments of the host's choosing. Each build of the host is asked about once:
  // when any answer is on record for it, a closed window included, or when the user has rated an
  // earlier build in the store, they show nothing. rateApp() always asks. Every session of the
  // window and every answered alert leaves one record in the user defaults.
  //
  // With a window of the host's as its parent, the rate window is modal over it, and the call
  // returns when the session has ended, which it also does when the parent goes. Without one (null)
  // the rate window stands freely and the call returns at once.

  /// Called once, on the main thread, when the session has ended and its record is stored; may be
  /// empty. An exception that it throws is dropped. It is never called when the trigger returned
  /// false, nor when a rate window was open already.
  using CompletitionHandler = std::function<void()>;

  /// Shows the rate window on its own.
  bool triggerRatingWithCompletitionHandler(CompletitionHandler completitionHandler);
  /// Shows the rate window, or brings the one that is open to the front; true when it did. False
  /// when this build is not to be asked about, or in a process without windows, which records
  /// nothing.
  bool triggerRatingWithWindow(HostWindow* window, CompletitionHandler completitionHandler);
  /// The same, at one call only: when it was called exactly `count` times before for this build,
  /// counting every call in every run. So 0 asks at the first call, 3 at the fourth, and a negative
  /// count never.
  bool triggerRatingWithWindow(HostWindow* window, std::int64_t count,
                               CompletitionHandler completitionHandler);
  /// Asks with a plain alert and leads to the store when the user agrees. True when it asked, and
  /// then not before the answer. False when this build is not to be asked about, while such an
  /// alert is up, or in a process without windows, which records nothing.
  bool triggerRatingWithModalAlert();
  /// Shows the rate window on its own, whatever is on record, or brings the open one to the front.
  void rateApp();

  // Pages for the user, opened outside the host. Main thread only; nothing happens when there is
  // nothing to open them with.

  /// The host's page in the application store.
  void openAppstoreForApp();
  /// The maker's support page for the host.
  void openSupportWebPage();
  /// The maker's support page.
  void openGeneralSupport();
  /// The maker's other applications.
  void moreApps();
  /// The maker's social feed.
  void followOnTwitter();
  /// The maker's web site.
  void openKVXWebPage();

  // Two switches for the host's own use; the framework reads neither. Any thread.

  bool connecting() const;
  void setConnecting(bool connecting);
  bool showAtLaunch() const;
  void setShowAtLaunch(bool showAtLaunch);

private:
  explicit KVXWrenvale(Service& service)
      : _service(service) {}

  Service& _service;
};

} // namespace wrenvale

using wrenvale::KVXWrenvale;

#endif
