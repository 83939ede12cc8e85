// A view of one web page, and what it reports and asks.

#ifndef WRENVALE_PLATFORM_WEBVIEW_H
#define WRENVALE_PLATFORM_WEBVIEW_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Value.h"

namespace wrenvale::platform {

/// Why a page wants to go somewhere.
enum class NavigationType : std::int64_t {
  kLinkClicked = 0,
  kFormSubmitted = 1,
  kBackForward = 2,
  kReload = 3,
  kFormResubmitted = 4,
  kOther = 5, ///< the page's own loads, redirects, script
};

struct NavigationAction {
  std::string url;             ///< where to
  std::string mainDocumentURL; ///< address of the page as a whole
  NavigationType type = NavigationType::kOther;
};

/// The answer to a navigation; `kNone` is no answer at all, which leaves the page where it is.
enum class PolicyDecision { kUse, kIgnore, kNone };

struct LoadError {
  std::string description; ///< for the user, in the user's language where the system has it
  std::string advice{};    ///< what the user can do about it; empty when that is nothing
  std::string url;
};

/// What the page may call on a script object.
struct ScriptMethod {
  std::string name;  ///< as the page writes it, perhaps with a colon inside
  int arguments = 0; ///< how many it takes; missing ones arrive as null, further ones not at all
};

/// Called on the main thread, never from within a call of the view's. The delegate may close the
/// view, or let go of it, from any of these.
class WebViewDelegate {
public:
  virtual ~WebViewDelegate() = default;

  /// The main frame's page is about to run its first script: the time to publish a script object.
  /// `origin` is whose page it is (scheme, host and port), as the engine knows it; empty for a page
  /// without one.
  virtual void didClearWindowObject(std::string_view origin) = 0;
  /// A script called a published method. The result is what the page gets: null, a boolean, an
  /// integer or a string; nothing makes the call a script error in the page.
  virtual std::optional<Value> invokeScriptMethod(std::string_view name,
                                                  const std::vector<Value>& arguments) = 0;
  /// The page wants to go somewhere, in its own window or in a new one.
  virtual PolicyDecision decidePolicyForNavigationAction(const NavigationAction& action) = 0;
  /// A page could not be fetched, or its process is gone.
  virtual void didFailProvisionalLoad(const LoadError& error, bool isMainFrame) = 0;
};

/// Main thread only. Destroying it ends the page, of which no script, sound or request is left once
/// the event loop has turned, and does no harm while one of the delegate's calls is under way. The
/// delegate outlives it.
///
/// The page is kept apart from the user's other data: nothing of it is stored, it reaches no files,
/// gets no permission, opens no window or dialog, and downloads nothing. Text in it cannot be
/// selected, nothing dragged in or out, and it has no context menu.
class WebView {
public:
  virtual ~WebView() = default;

  /// Publishes a global object to the main frame's scripts; frames inside the page get nothing.
  /// From within didClearWindowObject() only.
  virtual void setScriptObject(std::string_view name, const std::vector<ScriptMethod>& methods) = 0;
  /// Calls a global function of the page, later; its result is dropped, and so is the call when
  /// there is no such function. False, and no call, when the page that is there has got no object.
  virtual bool callWebScriptMethod(std::string_view name, const std::vector<Value>& arguments) = 0;
};

} // namespace wrenvale::platform

#endif
