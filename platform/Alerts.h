// Message boxes.

#ifndef WRENVALE_PLATFORM_ALERTS_H
#define WRENVALE_PLATFORM_ALERTS_H

#include <functional>
#include <optional>
#include <string>

namespace wrenvale::platform {

/// How an alert was answered. Closing it without a button counts as its alternate button, or as its
/// default button when it has no other.
enum AlertReturn : int {
  kAlertDefaultReturn = 1,
  kAlertAlternateReturn = 0,
  kAlertOtherReturn = -1,
};

/// Plain text throughout; nothing in it is read as markup.
struct Alert {
  std::string title; ///< of its window: the application's name
  std::string messageText;
  std::string informativeText;
  std::string defaultButton;
  std::optional<std::string> alternateButton{};
  std::optional<std::string> otherButton{};
};

/// Main thread only.
class Alerts {
public:
  virtual ~Alerts() = default;

  /// Calls `willShow`, shows the alert on its own and returns its answer. When the application
  /// quits meanwhile, the answer is as if the alert had been closed. Nothing, and `willShow` not
  /// called, in a process without windows to show it in.
  virtual std::optional<int> runModal(const Alert& alert,
                                      const std::function<void()>& willShow) = 0;
};

} // namespace wrenvale::platform

#endif
