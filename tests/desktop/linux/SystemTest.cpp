// What the running system says of itself, its user and its host.

#include <fstream>
#include <map>

#include <gmock/gmock.h>
#include <sys/stat.h>

#include "TemporaryFolder.h"
#include "desktop/linux/system/EnvironmentLocale.h"
#include "desktop/linux/system/HostInfo.h"
#include "desktop/linux/system/LinuxSystem.h"

namespace wrenvale::platform {
namespace {

using namespace std::string_literals;
using testing::Optional;
using Text = std::optional<std::string>;

constexpr const char* kFirmware = "/sys/devices/virtual/dmi/id/product_name";
constexpr const char* kDeviceTree = "/proc/device-tree/model";

TEST(LinuxSystem, ModelIsTheFirstNameThatTheFirmwareStates) {
  const struct {
    Text firmware;
    Text deviceTree;
    Text model;
  } rows[] = {
      {{}, {}, {}},
      {"\t Notebook 14, G2 \r\n\n", "Board\0"s, "Notebook 14, G2"},
      {{}, "Board 4 Model B\0"s, "Board 4 Model B"},
      {" \t\n", "Board\0"s, "Board"},
      {"", "\0"s, {}},
      {std::string(10'000'000, 'x'), {}, std::string(256, 'x')},
  };
  for (const auto& row : rows) {
    const TemporaryFolder root;
    if (row.firmware) root.write(kFirmware, *row.firmware);
    if (row.deviceTree) root.write(kDeviceTree, *row.deviceTree);
    EXPECT_EQ(LinuxSystem(root.path()).sysctlbyname("hw.model"), row.model);
  }
}

// A read of either would wait forever or never end.
TEST(LinuxSystem, WhatIsNoFileIsPassedOver) {
  const TemporaryFolder root;
  root.write(kDeviceTree, "Board");
  const auto firmware = root.prepare(kFirmware);
  ASSERT_EQ(::mkfifo(firmware.c_str(), 0600), 0);
  EXPECT_THAT(LinuxSystem(root.path()).sysctlbyname("hw.model"), Optional("Board"s)) << "pipe";
  std::filesystem::remove(firmware);
  std::filesystem::create_symlink("/dev/zero", firmware);
  EXPECT_THAT(LinuxSystem(root.path()).sysctlbyname("hw.model"), Optional("Board"s)) << "device";
}

TEST(LinuxSystem, ReleaseIsThatOfTheRunningSystem) {
  std::string release;
  std::getline(std::ifstream("/proc/sys/kernel/osrelease"), release);
  if (release.empty()) GTEST_SKIP() << "the system does not show its release elsewhere";
  EXPECT_THAT(LinuxSystem().sysctlbyname("kern.osrelease"), Optional(release));
  EXPECT_EQ(LinuxSystem().sysctlbyname("kern.ostype"), std::nullopt);
}

TEST(Locale, IsReadFromTheEnvironment) {
  const struct {
    std::map<std::string, std::string> variables;
    Text country;
    std::vector<std::string> languages;
  } rows[] = {
      {{}, {}, {}},
      {{{"LANG", "de_DE.UTF-8@euro"}}, "DE", {"de"}},
      {{{"LANG", "eo.UTF-8"}}, {}, {"eo"}},
      {{{"LANG", "zh_Hant_TW"}}, "TW", {"zh"}},
      {{{"LANG", "es_419"}}, "419", {"es"}},
      {{{"LANG", "C.UTF-8"}}, {}, {}},
      {{{"LANG", "POSIX"}}, {}, {}},
      // The first that is not empty decides, even when it says nothing.
      {{{"LC_ALL", "it_CH"}, {"LC_MESSAGES", "fr_FR"}, {"LANG", "de_DE"}}, "CH", {"it"}},
      {{{"LC_ALL", ""}, {"LC_MESSAGES", "fr_FR"}, {"LANG", "de_DE"}}, "FR", {"fr"}},
      {{{"LC_ALL", "../x"}, {"LANG", "de_DE"}}, {}, {}},
      {{{"LANG", "fr_CH"}, {"LANGUAGE", "fr_CH:de_DE.UTF-8@euro:en"}},
       "CH",
       {"fr-CH", "de-DE", "en"}},
      {{{"LANG", "nl_BE"}, {"LANGUAGE", "::"}}, "BE", {"nl"}},
      {{{"LANGUAGE", ":en_GB::en:zh_Hant_TW:en_GB:"}}, {}, {"en-GB", "en", "zh-Hant-TW"}},
      // What would not be safe in an address, or is no name of a language.
      {{{"LANGUAGE", "../../x:de/DE:de DE:de?x=1:de%2F:d\xc3\xa9:en"}}, {}, {"en"}},
      {{{"LANGUAGE", "_DE:de_:de__DE:C:POSIX:12:abcdefghi:de_abcdefghi:.UTF-8:@x:sv"}}, {}, {"sv"}},
      {{{"LANG", "de_D/E"}, {"LANGUAGE", "/"}}, {}, {}},
  };
  for (const auto& row : rows) {
    const EnvironmentLocale locale([&row](const char* name) {
      const auto found = row.variables.find(name);
      return found == row.variables.end() ? nullptr : found->second.c_str();
    });
    const auto what = testing::PrintToString(row.variables);
    EXPECT_EQ(locale.countryCode(), row.country) << what;
    EXPECT_EQ(locale.preferredLanguages(), row.languages) << what;
  }
}

TEST(HostInfo, IsEmptyWithoutADictionary) {
  for (const auto* info : {"", "garbage", "<plist><array><string>x</string></array></plist>"})
    EXPECT_TRUE(infoFromPropertyList(info).empty()) << info;
}

} // namespace
} // namespace wrenvale::platform
