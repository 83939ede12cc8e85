// In-memory stand-in for the running application and the desktop around it.

#ifndef WRENVALE_PLATFORM_FAKE_FAKEAPPLICATION_H
#define WRENVALE_PLATFORM_FAKE_FAKEAPPLICATION_H

#include <deque>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/Application.h"
#include "platform/System.h"

namespace wrenvale::platform {

/// Thrown by FakeApplication::terminate() in place of ending the process.
struct FakeTermination {
  int status;
};

class FakeApplication : public Application {
public:
  explicit FakeApplication(const System& clock)
      : clock_(clock) {}

  void activateIgnoringOtherApps(bool) override { ++activations; }
  void beep() override { ++beeps; }
  /// Opens five addresses within any two seconds of its clock, as a real one does.
  bool openURL(std::string_view url) override;
  std::optional<std::string> localizedString(std::string_view key,
                                             std::string_view table) const override;
  bool registerFont(std::string_view resource, std::string_view extension) override;
  [[noreturn]] void terminate(int status) override { throw FakeTermination{status}; }

  int activations = 0;
  int beeps = 0;
  std::vector<std::string> opened; ///< addresses, in order
  bool hasOpener = true;
  std::map<std::pair<std::string, std::string>, std::string> strings; ///< by table and key
  bool hasFonts = true;
  std::vector<std::string> fonts; ///< file names asked for, in order

private:
  const System& clock_;
  std::deque<Date> moments_;
};

} // namespace wrenvale::platform

#endif
