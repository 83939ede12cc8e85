// The window that shows the maker's page, as its controller commands it. The window decides
// nothing: it reports what the page and the user do, asks what it may do, and shows what it is
// told.

#ifndef WRENVALE_PLATFORM_RECOMMENDERWINDOW_H
#define WRENVALE_PLATFORM_RECOMMENDERWINDOW_H

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/Value.h"
#include "platform/Alerts.h"
#include "platform/WebView.h"

namespace wrenvale::platform {

/// A rectangle on the screen, in points; y grows downwards.
struct Frame {
  double x = 0, y = 0, width = 0, height = 0;
};

/// What the page reports and asks is the window's to report and ask, and it never does so from
/// within a call of the window's, but for windowWillClose(). The delegate may close the window, or
/// let go of it, from any of these calls.
class RecommenderWindowDelegate : public WebViewDelegate {
public:
  /// The window is closing, for whatever reason; called once.
  virtual void windowWillClose() = 0;
};

/// Made from the layout "Recommender", hidden. Main thread only. Destroying it closes it without
/// telling the delegate, and does no harm while one of the delegate's calls or a sheet's handler is
/// under way. A window whose web view cannot be had (no module, engine that does not start) behaves
/// like one whose page cannot be fetched.
class RecommenderWindow {
public:
  virtual ~RecommenderWindow() = default;

  virtual void setTitle(std::string_view title) = 0;
  virtual void setBackgroundWhite() = 0;
  virtual void setWebViewHidden(bool hidden) = 0;
  /// The progress indicator spins and shows, or stands still and hides.
  virtual void setProgressShown(bool shown) = 0;

  virtual void removeAllCachedResponses() = 0;
  /// What the web view adds to its own user agent.
  virtual void setApplicationNameForUserAgent(std::string_view name) = 0;
  /// Loads a page into the main frame, past every cache; gives up after `timeout`.
  virtual void loadRequest(std::string_view url, std::chrono::seconds timeout) = 0;

  /// Publishes a global object to the main frame's scripts. Frames inside the page get nothing.
  virtual void setScriptObject(std::string_view name, const std::vector<ScriptMethod>& methods) = 0;
  /// Whether there is a page whose functions can be called.
  virtual bool hasScriptObject() const = 0;
  /// Calls a global function of the page, later or at once; its result is dropped, and so is the
  /// call when there is no such function.
  virtual void callWebScriptMethod(std::string_view name, const std::vector<Value>& arguments) = 0;

  virtual bool isVisible() const = 0;
  virtual Frame frame() const = 0;
  /// The frame that a content rectangle of this size at (0, 0) needs with the window's decoration.
  virtual Frame frameForContentSize(double width, double height) const = 0;
  /// The page chooses the size: it may be negative, or too large for any screen.
  virtual void setFrame(const Frame& frame, bool animate) = 0;
  virtual void showWindow() = 0;
  virtual void makeKeyAndOrderFront() = 0;

  /// Shows the alert as a sheet on the window. `handler` is called once with the answer, or never
  /// when the window goes first.
  virtual void beginSheet(const Alert& alert, std::function<void(int)> handler) = 0;

  /// Closes the window and ends its page; the delegate is told.
  virtual void close() = 0;
  /// Ends the page: no script, sound or request of it is left.
  virtual void closeWebView() = 0;
};

/// Main thread only.
class RecommenderWindows {
public:
  virtual ~RecommenderWindows() = default;

  /// Null in a process without windows.
  virtual std::unique_ptr<RecommenderWindow>
  makeRecommenderWindow(RecommenderWindowDelegate& delegate) = 0;
};

} // namespace wrenvale::platform

#endif
