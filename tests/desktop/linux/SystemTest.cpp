// What the running system says of itself, its user, its applications and its host.

#include <map>
#include <tuple>

#include <gmock/gmock.h>
#include <sys/stat.h>

#include "TemporaryFolder.h"
#include "desktop/linux/system/DesktopEntries.h"
#include "desktop/linux/system/EnvironmentLocale.h"
#include "desktop/linux/system/HostInfo.h"
#include "desktop/linux/system/LinuxSystem.h"

namespace wrenvale::platform {
namespace {

using namespace std::string_literals;
using Text = std::optional<std::string>;
using Variables = std::map<std::string, std::string>;
using Files = std::map<std::string, std::string>; // path in the test's folder -> content

constexpr const char* kOwn = "/own/applications/org.sketch.desktop";
constexpr const char* kFirst = "/first/applications/org.sketch.desktop";
constexpr const char* kSecond = "/second/applications/org.sketch.desktop";
constexpr const char* kEntry = "[Desktop Entry]\nType=Application\nName=Sketch\n";

Environment environmentOf(const Variables& variables) {
  return [variables](const char* name) {
    const auto found = variables.find(name);
    return found == variables.end() ? nullptr : found->second.c_str();
  };
}

// The entry of the application, as a path in the folder; empty without.
std::string entryIn(const TemporaryFolder& root, std::string_view identifier) {
  const auto environment =
      environmentOf({{"HOME", root.path("/home")},
                     {"XDG_DATA_HOME", root.path("/own")},
                     {"XDG_DATA_DIRS", root.path("/first") + ":" + root.path("/second")}});
  const DesktopEntries desktop(environment, root.path());
  const auto found = desktop.URLForApplicationWithBundleIdentifier(identifier);
  return found ? found->substr(root.path().size()) : "";
}

TEST(LinuxSystem, ModelIsTheFirstNameThatTheFirmwareStates) {
  const std::tuple<Text, Text, Text> rows[] = {
      {{}, {}, {}},
      {"\t Notebook 14, G2 \r\n\n", "Board\0"s, "Notebook 14, G2"},
      {{}, "Board 4 Model B\0"s, "Board 4 Model B"},
      {" \t\n", "Board\0"s, "Board"},
      {"", "\0"s, {}},
      {std::string(10'000'000, 'x'), {}, std::string(256, 'x')},
  };
  for (const auto& [firmware, deviceTree, model] : rows) {
    const TemporaryFolder root;
    if (firmware) root.write("/sys/devices/virtual/dmi/id/product_name", *firmware);
    if (deviceTree) root.write("/proc/device-tree/model", *deviceTree);
    EXPECT_EQ(LinuxSystem(root.path()).sysctlbyname("hw.model"), model);
  }
}

TEST(LinuxSystem, ReleaseIsThatOfTheRunningSystem) {
  EXPECT_EQ(LinuxSystem().sysctlbyname("kern.osrelease").value_or("") + "\n",
            contentsOf("/proc/sys/kernel/osrelease"));
  EXPECT_EQ(LinuxSystem().sysctlbyname("kern.ostype"), std::nullopt);
}

TEST(Locale, IsReadFromTheEnvironment) {
  const std::tuple<Variables, Text, std::vector<std::string>> rows[] = {
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
      {{{"LANG", "nl_BE"}, {"LANGUAGE", "::"}}, "BE", {"nl"}},
      {{{"LANG", "fr_CH"}, {"LANGUAGE", ":en_GB::en.UTF-8@x:zh_Hant_TW:en_GB:"}},
       "CH",
       {"en-GB", "en", "zh-Hant-TW"}},
      // What would not be safe in an address, or is no name of a language.
      {{{"LANGUAGE", "../../x:de/DE:de DE:de?x=1:de%2F:d\xc3\xa9:en"}}, {}, {"en"}},
      {{{"LANGUAGE", "_DE:de_:de__DE:C:POSIX:12:abcdefghi:de_abcdefghi:.UTF-8:@x:sv"}}, {}, {"sv"}},
  };
  for (const auto& [variables, country, languages] : rows) {
    const EnvironmentLocale locale(environmentOf(variables));
    EXPECT_EQ(locale.countryCode(), country) << testing::PrintToString(variables);
    EXPECT_EQ(locale.preferredLanguages(), languages) << testing::PrintToString(variables);
  }
}

TEST(InstalledApplications, TheFirstEntryDecides) {
  const std::pair<Files, std::string> rows[] = {
      {{{"/own/applications/sub/org.sketch.desktop", kEntry},
        {"/own/applications/org.sketch", kEntry},
        {"/own/org.sketch.desktop", kEntry}},
       ""},
      {{{kOwn, ""}, {kFirst, kEntry}}, kOwn},
      {{{kFirst, kEntry}, {kSecond, kEntry}}, kFirst},
      {{{kOwn, kEntry + "Hidden=true\n"s}, {kSecond, kEntry}}, ""},
      {{{kOwn, kEntry + "Hidden=false\n"s}}, kOwn},
      {{{kOwn, kEntry + "Hidden = true \r\n"s}}, ""},
      {{{kOwn, "# x\n\n  [Desktop Entry]\nHidden=true"}}, ""},
      {{{kOwn, kEntry + std::string(100'000, '#') + "\nHidden=true\n"}}, ""},
      {{{kOwn, kEntry + "#Hidden=true\nHidden[de]=true\nXHidden=true\nHidden\n"s}}, kOwn},
      {{{kOwn, "Hidden=true\n[Other]\nHidden=true\n"s + kEntry + "[More]\nHidden=true\n"}}, kOwn},
  };
  for (const auto& [files, found] : rows) {
    const TemporaryFolder root;
    for (const auto& [name, content] : files)
      root.write(name, content);
    EXPECT_EQ(entryIn(root, "org.sketch"), found) << testing::PrintToString(files).substr(0, 1000);
  }
}

TEST(InstalledApplications, APipeIsPassedOverAndALinkIsFollowed) {
  const TemporaryFolder root;
  root.write(kSecond, kEntry);
  root.write(kOwn, kEntry);
  const auto own = root.path(kOwn);
  std::filesystem::remove(own);
  ASSERT_EQ(::mkfifo(own.c_str(), 0600), 0);
  EXPECT_EQ(entryIn(root, "org.sketch"), kSecond);
  EXPECT_EQ(entryIn(root, "../applications/org.sketch"), "");
  std::filesystem::remove(own);
  std::filesystem::create_symlink(root.path(kSecond), own);
  EXPECT_EQ(entryIn(root, "org.sketch"), kOwn);
}

TEST(InstalledApplications, FoldersFollowTheEnvironment) {
  const std::string system = "/usr/local/share/applications/ /usr/share/applications/ ";
  const std::string flatpak = "/var/lib/flatpak/exports/share/applications/ ";
  const std::string snap = "/var/lib/snapd/desktop/applications/ ";
  const std::string home = "/h/.local/share/flatpak/exports/share/applications/ ";
  const std::pair<Variables, std::string> rows[] = {
      {{{"HOME", "h"}, {"XDG_DATA_DIRS", ""}}, system + flatpak + snap},
      {{{"HOME", "/h"}, {"XDG_DATA_HOME", "relative"}},
       "/h/.local/share/applications/ " + system + home + flatpak + snap},
      {{{"HOME", "/h"},
        {"XDG_DATA_HOME", "/d/"},
        {"XDG_DATA_DIRS", "/a:b::./c:/e//f:/a//:/var/lib/snapd/desktop"}},
       "/d/applications/ /a/applications/ /e/f/applications/ " + snap + home + flatpak},
  };
  for (const auto& [variables, expected] : rows) {
    const DesktopEntries entries(environmentOf(variables));
    std::string folders; // a blank behind each
    for (const auto& folder : entries.folders())
      folders += folder + " ";
    EXPECT_EQ(folders, expected);
  }
}

TEST(HostInfo, IsEmptyWithoutADictionary) {
  for (const auto* info : {"", "garbage", "<plist><array><string>x</string></array></plist>"})
    EXPECT_TRUE(infoFromPropertyList(info).empty()) << info;
}

} // namespace
} // namespace wrenvale::platform
