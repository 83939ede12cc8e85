// The running host application and the desktop it runs on.

#ifndef WRENVALE_PLATFORM_APPLICATION_H
#define WRENVALE_PLATFORM_APPLICATION_H

#include <optional>
#include <string>
#include <string_view>

namespace wrenvale::platform {

/// Main thread only but for what says otherwise.
class Application {
public:
  virtual ~Application() = default;

  virtual void activateIgnoringOtherApps(bool flag) = 0;
  virtual void beep() = 0;

  /// Opens an address in the application that handles its scheme. False when it is no address, its
  /// scheme would run or read something local, nothing handles it, or addresses are being opened
  /// faster than a person would; nothing is opened then.
  virtual bool openURL(std::string_view url) = 0;

  /// The host's translation of `key` in `table`, nothing when it has none. Any thread; a host may
  /// install translators at any time.
  virtual std::optional<std::string> localizedString(std::string_view key,
                                                     std::string_view table) const = 0;

  /// Makes a font of the framework's own resources known to this process by its family name, at the
  /// latest before one of the framework's windows draws with it. False when there is no such
  /// resource, or no windows to show text in.
  virtual bool registerFont(std::string_view resource, std::string_view extension) = 0;

  /// Ends the process with this exit status, within about a second whatever its other threads do.
  /// What was written to the user defaults is made durable first, if that takes no longer. Any
  /// thread.
  [[noreturn]] virtual void terminate(int status) = 0;
};

} // namespace wrenvale::platform

#endif
