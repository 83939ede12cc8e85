// The running host, seen through Qt.

#ifndef WRENVALE_DESKTOP_QT_APP_QTAPPLICATION_H
#define WRENVALE_DESKTOP_QT_APP_QTAPPLICATION_H

#include "platform/Application.h"
#include "platform/UserDefaults.h"

namespace wrenvale::platform {

/// In a host without a GUI application object, what needs windows does nothing.
class QtApplication : public Application {
public:
  explicit QtApplication(UserDefaults& userDefaults)
      : userDefaults_(userDefaults) {}

  void observeDidFinishLaunching(std::function<void()> handler) override;
  void activateIgnoringOtherApps(bool flag) override;
  void beep() override;
  bool registerFont(std::string_view resource, std::string_view extension) override;
  [[noreturn]] void terminate(int status) override;

private:
  UserDefaults& userDefaults_;
};

} // namespace wrenvale::platform

#endif
