// The running host application.

#ifndef WRENVALE_PLATFORM_APPLICATION_H
#define WRENVALE_PLATFORM_APPLICATION_H

#include <functional>
#include <string_view>

namespace wrenvale::platform {

/// Main thread only but for what says otherwise.
class Application {
public:
  virtual ~Application() = default;

  /// Calls `handler` once, on the main thread, when the host has finished launching: before
  /// anything that the host queued for its event loop. May be called before `main`, and before the
  /// host has created any application object.
  virtual void observeDidFinishLaunching(std::function<void()> handler) = 0;

  virtual void activateIgnoringOtherApps(bool flag) = 0;
  virtual void beep() = 0;

  /// Makes a font of the framework's own resources known to this process by its family name. False
  /// when there is no such resource, or no windows to show text in.
  virtual bool registerFont(std::string_view resource, std::string_view extension) = 0;

  /// Ends the process with this exit status, within about a second whatever its other threads do.
  /// What was written to the user defaults is made durable first, if that takes no longer. Any
  /// thread.
  [[noreturn]] virtual void terminate(int status) = 0;
};

} // namespace wrenvale::platform

#endif
