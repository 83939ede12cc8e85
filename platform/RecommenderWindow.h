// The window that shows the maker's page, as its controller commands it. The window decides
// nothing: it reports what the page and the user do, asks what it may do, and shows what it is
// told.

#ifndef WRENVALE_PLATFORM_RECOMMENDERWINDOW_H
#define WRENVALE_PLATFORM_RECOMMENDERWINDOW_H

#include <chrono>
#include <functional>
#include <string>
#include <string_view>

#include "platform/Alert.h"
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

/// What the window asks the maker's server for.
struct PageRequest {
  std::string url;
  std::string applicationName;      ///< what is added to the engine's own user agent
  std::chrono::seconds timeout{60}; ///< until the page begins to arrive
};

/// White, hidden, its web view hidden behind a progress indicator that spins. Main thread only.
/// Destroying it closes it without telling the delegate, and does no harm while one of the
/// delegate's calls or a sheet's handler is under way. A window whose web view cannot be had (no
/// module, engine that does not start) behaves like one whose page cannot be fetched.
class RecommenderWindow {
public:
  virtual ~RecommenderWindow() = default;

  virtual void setTitle(std::string_view title) = 0;

  /// Loads a page, past every cache. Once; the web view begins its life with it.
  virtual void loadRequest(const PageRequest& request) = 0;
  /// Null before the page is asked for, and once the window is closed.
  virtual WebView* webView() const = 0;
  /// Shows the web view in the place of the progress indicator.
  virtual void revealWebView() = 0;

  virtual bool isVisible() const = 0;
  virtual Frame frame() const = 0;
  /// The frame that a content rectangle of this size at (0, 0) needs with the window's decoration.
  virtual Frame frameForContentSize(double width, double height) const = 0;
  /// The page chooses the size: it may be negative, or too large for any screen.
  virtual void setFrame(const Frame& frame, bool animate) = 0;
  /// Brings the window to the front, be it shown already or not.
  virtual void makeKeyAndOrderFront() = 0;

  /// Shows the alert as a sheet on the window. `handler` is called once with the answer, or never
  /// when the window goes first.
  virtual void beginSheet(const Alert& alert, std::function<void(int)> handler) = 0;

  /// Closes the window and ends its page; the delegate is told.
  virtual void close() = 0;
};

} // namespace wrenvale::platform

#endif
