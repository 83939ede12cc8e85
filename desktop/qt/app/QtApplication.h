// The running host and its desktop, seen through Qt.

#ifndef WRENVALE_DESKTOP_QT_APP_QTAPPLICATION_H
#define WRENVALE_DESKTOP_QT_APP_QTAPPLICATION_H

#include <array>
#include <chrono>
#include <cstddef>

#include "platform/Application.h"
#include "platform/UserDefaults.h"

namespace wrenvale::platform {

/// Admits five openings within any two seconds: more than a person makes, and few enough that a
/// page which opens addresses in a loop does not flood the desktop with browsers. One thread.
class OpeningLimit {
public:
  using Moment = std::chrono::steady_clock::time_point;

  /// True when an address may be opened at `moment`, which then counts as an opening; what is
  /// refused does not count. Moments never go back.
  bool admits(Moment moment);

private:
  std::array<Moment, 5> last_{Moment::min(), Moment::min(), Moment::min(), Moment::min(),
                              Moment::min()};
  std::size_t oldest_ = 0;
};

/// In a host without a GUI application object, what needs windows does nothing.
class QtApplication final : public Application {
public:
  explicit QtApplication(UserDefaults& userDefaults)
      : userDefaults_(userDefaults) {}

  void activateIgnoringOtherApps(bool flag) override;
  void beep() override;
  /// Opens http, https, mailto and the store's addresses; every other scheme is refused, since
  /// addresses come from documents and pages and must not run or read anything local.
  bool openURL(std::string_view url) override;
  /// By the host's installed translators: a table is the context of its name, the key the source
  /// text.
  std::optional<std::string> localizedString(std::string_view key,
                                             std::string_view table) const override;
  /// Says only that there is such a font: registerFontWithQt() waits until a window draws with it.
  bool registerFont(std::string_view resource, std::string_view extension) override;
  [[noreturn]] void terminate(int status) override;

private:
  UserDefaults& userDefaults_;
  OpeningLimit limit_;
};

} // namespace wrenvale::platform

#endif
