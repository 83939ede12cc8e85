// Photo Tool's user chooses from the Help menu on a real display; what reaches the desktop's opener
// of addresses.

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <sstream>

#include <gmock/gmock.h>

#include "tests/acceptance/HostProcess.h"

namespace wrenvale::tests {
namespace {

namespace fs = std::filesystem;

const std::string kVendorBase = WRENVALE_VENDOR_BASE;

// A stand-in for the desktop's opener, which tells what it is given through a pipe.
class Opener {
public:
  explicit Opener(const fs::path& folder)
      : folder_(folder) {
    fs::create_directories(folder);
    const auto pipe = folder / "pipe";
    mkfifo(pipe.c_str(), 0600);
    pipe_ = open(pipe.c_str(), O_RDWR | O_NONBLOCK);
    std::ofstream(folder / "xdg-open")
        << "#!/bin/sh\nprintf '%s\\n' \"$1\" >'" << pipe.string() << "'\n";
    fs::permissions(folder / "xdg-open", fs::perms::owner_all);
  }
  ~Opener() { close(pipe_); }
  Opener(const Opener&) = delete;
  Opener& operator=(const Opener&) = delete;

  const fs::path& folder() const { return folder_; }

  /// What was opened, as soon as it is this many addresses or none has come for a while.
  std::vector<std::string> opened(std::size_t count) {
    std::string text;
    pollfd ready{pipe_, POLLIN, 0};
    while (std::count(text.begin(), text.end(), '\n') < static_cast<std::ptrdiff_t>(count) &&
           poll(&ready, 1, 5000) > 0) {
      char bytes[4096];
      text.append(bytes, static_cast<std::size_t>(std::max(read(pipe_, bytes, sizeof bytes), 0L)));
    }
    std::vector<std::string> addresses;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
      addresses.push_back(line);
    return addresses;
  }

private:
  const fs::path folder_;
  int pipe_ = -1;
};

// With no folders on PATH but the one given.
Run onADisplay(const Home& home, const fs::path& path, const std::string& steps) {
  return home.run(XVFB_RUN, {"--auto-servernum", "/usr/bin/env", "PATH=" + path.string(),
                             "QT_QPA_PLATFORM=xcb", PHOTO_TOOL, "--do", steps});
}

class HelpMenu : public testing::Test {
protected:
  void SetUp() override {
    if (std::string(XVFB_RUN).empty()) GTEST_SKIP() << "there is no Xvfb";
  }

  const Home home;
  Opener opener{home.settings("opener").parent_path()};
};

// Two runs, since nobody could choose so fast: the last of six pages would be refused.
constexpr const char* kEveryPage[] = {
    "help-menu=moreAppsAction,help-menu=openGeneralSupportAction,help-menu=followOnTwitterAction,"
    "help-menu=openKVXWebPageAction,quit",
    "help-menu=rateOnMacAppStoreAction,like,store,"
    "help-menu=rateOnMacAppStoreAction,dislike,contact,quit"};

TEST_F(HelpMenu, OpensTheMakersPages) {
  for (const char* steps : kEveryPage) {
    const auto run = onADisplay(home, opener.folder(), steps);
    EXPECT_EQ(run.status, 0) << run.output << run.errors;
  }
  // Each is opened by a process of its own, so they come in any order.
  EXPECT_THAT(opener.opened(6),
              testing::UnorderedElementsAre(
                  kVendorBase + "/app_redirect/moreapps_US_en",
                  kVendorBase + "/app_redirect/support_US_en",
                  kVendorBase + "/app_redirect/twitter", kVendorBase,
                  testing::MatchesRegex("macappstore://.*/us/app/id123456789\\?mt=12"),
                  kVendorBase + "/app_redirect/support_US_en/com.example.phototool"));
}

TEST_F(HelpMenu, DoesNothingWhereNothingOpensAddresses) {
  for (const char* steps : kEveryPage) {
    const auto run = onADisplay(home, opener.folder() / "nowhere", steps);
    EXPECT_EQ(run.status, 0) << run.output << run.errors;
  }
}

} // namespace
} // namespace wrenvale::tests
