// What a message box says, and how it was answered.

#ifndef WRENVALE_PLATFORM_ALERT_H
#define WRENVALE_PLATFORM_ALERT_H

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

} // namespace wrenvale::platform

#endif
