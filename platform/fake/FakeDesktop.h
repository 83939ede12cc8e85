// In-memory stand-ins for the running application and the desktop around it.

#ifndef WRENVALE_PLATFORM_FAKE_FAKEDESKTOP_H
#define WRENVALE_PLATFORM_FAKE_FAKEDESKTOP_H

#include <deque>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/Application.h"
#include "platform/Clock.h"
#include "platform/MainBundle.h"
#include "platform/Workspace.h"

namespace wrenvale::platform {

class FakeLocalization : public Localization {
public:
  std::optional<std::string> localizedInfoString(std::string_view key) const override;
  std::string localizedStringForKey(std::string_view key, std::string_view table) const override;

  std::map<std::string, std::string, std::less<>> info;
  std::map<std::pair<std::string, std::string>, std::string> strings; ///< by table and key
};

/// Thrown by FakeApplication::terminate() in place of ending the process.
struct FakeTermination {
  int status;
};

class FakeApplication : public Application {
public:
  /// Tests launch their service themselves.
  void observeDidFinishLaunching(std::function<void()>) override {}
  void activateIgnoringOtherApps(bool flag) override;
  void beep() override { ++beeps; }
  bool registerFont(std::string_view resource, std::string_view extension) override;
  [[noreturn]] void terminate(int status) override { throw FakeTermination{status}; }

  int activations = 0;
  int beeps = 0;
  bool hasFonts = true;
  std::vector<std::string> fonts; ///< file names asked for, in order
};

/// Opens five addresses within any two seconds of its clock, as a real one does.
class FakeWorkspace : public Workspace {
public:
  explicit FakeWorkspace(const Clock& clock)
      : clock_(clock) {}

  bool openURL(std::string_view url) override;

  std::vector<std::string> opened;
  bool hasOpener = true;

private:
  const Clock& clock_;
  std::deque<Date> moments_;
};

} // namespace wrenvale::platform

#endif
