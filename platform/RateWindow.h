// The rate window, as its controller commands it. The window decides nothing: it reports what the
// user does to its delegate and shows what it is told.

#ifndef WRENVALE_PLATFORM_RATEWINDOW_H
#define WRENVALE_PLATFORM_RATEWINDOW_H

#include <functional>
#include <string_view>

#include <wrenvale/HostWindow.h>

namespace wrenvale::platform {

enum class RateButton { kLike, kDislike, kAppstore, kContact };
enum class RateView { kRate, kAppstore, kContact };

/// Called on the main thread, never from within a call of the window's. The delegate may close the
/// window, or let go of it, from any of these.
class RateWindowDelegate {
public:
  virtual ~RateWindowDelegate() = default;

  virtual void buttonAction(RateButton sender) = 0;
  /// The user, the window system, a parent that goes or a host that quits closes the window. It
  /// closes when the answer is true.
  virtual bool windowShouldClose() = 0;
  /// The pointer entered or left a button.
  virtual void hovered(RateButton button, bool inside) = 0;
};

/// Hidden at first. Main thread only. Destroying it closes it without asking, ends its modal loop,
/// and does no harm while one of its delegate's calls is under way.
class RateWindow {
public:
  virtual ~RateWindow() = default;

  /// Shows the framework's image of this name, or none when there is no such image.
  virtual void showImage(std::string_view name) = 0;
  /// Puts a view into the bottom container; `pushed` lets it push the present one out, coming from
  /// the right (from the left where text runs that way), unless the desktop wants no animations.
  virtual void setView(RateView view, bool pushed) = 0;

  /// Attaches the window to `parent`: centred on it, not to be moved by the user.
  virtual void attachToParent(HostWindow* parent) = 0;
  virtual void makeKeyAndOrderFront() = 0;
  /// Runs the window modally until it is closed or destroyed in any way; not at all when it is
  /// closed already.
  virtual void runModal() = 0;
  /// Closes without asking the delegate.
  virtual void close() = 0;
};

/// The dark layer over a parent's content while the rate window is above it. Made transparent.
/// Outlives its parent without harm; destroying it removes it. Main thread only.
class DimmingOverlay {
public:
  virtual ~DimmingOverlay() = default;

  /// Moves the opacity (0 to 1) there; calls `completion`, when given, once it has arrived, or at
  /// once when the desktop wants no animations or the parent is gone. Never calls it after the
  /// overlay is destroyed.
  virtual void animateAlpha(double alpha, std::function<void()> completion) = 0;
};

} // namespace wrenvale::platform

#endif
