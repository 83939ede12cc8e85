// Message boxes.

#ifndef WRENVALE_PLATFORM_ALERTS_H
#define WRENVALE_PLATFORM_ALERTS_H

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

  /// Shows the alert on its own and returns its answer. Without windows to show it in, or when the
  /// application quits meanwhile, the answer is as if the alert had been closed.
  virtual int runModal(const Alert& alert) = 0;
};

} // namespace wrenvale::platform

#endif
