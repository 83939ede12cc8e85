#include "desktop/linux/system/DesktopEntries.h"

#include <climits>
#include <map>

#include <gmock/gmock.h>
#include <sys/stat.h>

#include "TemporaryFolder.h"

namespace wrenvale::platform {
namespace {

using namespace std::string_literals;
using Files = std::map<std::string, std::string>; // path in the test's folder -> content

constexpr const char* kEntry = "[Desktop Entry]\nType=Application\nName=Sketch\n";

// A desktop whose data directories, in order, are these folders and those of the packagers.
class InstalledApplications : public testing::Test {
protected:
  DesktopEntries desktop() const {
    const std::map<std::string, std::string> variables = {
        {"HOME", root_.path("/home")},
        {"XDG_DATA_HOME", root_.path("/own")},
        {"XDG_DATA_DIRS", root_.path("/first") + ":" + root_.path("/second")}};
    return DesktopEntries(
        [&](const char* name) {
          const auto found = variables.find(name);
          return found == variables.end() ? nullptr : found->second.c_str();
        },
        root_.path());
  }

  // The answer as a path in the test's folder; empty when there is none.
  std::string find(std::string_view identifier) const {
    const auto found = desktop().URLForApplicationWithBundleIdentifier(identifier);
    return found ? found->substr(root_.path().size()) : "";
  }

  void install(const Files& files) const {
    for (const auto& [name, content] : files)
      root_.write(name, content);
  }
  void clear() const {
    for (const auto& item : std::filesystem::directory_iterator(root_.path()))
      std::filesystem::remove_all(item);
  }

  const TemporaryFolder root_;
};

TEST_F(InstalledApplications, TheFirstEntryDecides) {
  const std::string own = "/own/applications/org.sketch.desktop";
  const std::string first = "/first/applications/org.sketch.desktop";
  const std::string second = "/second/applications/org.sketch.desktop";
  const std::string flatpakOwn = "/home/.local/share/flatpak/exports/share/applications/"
                                 "org.sketch.desktop";
  const std::string flatpak = "/var/lib/flatpak/exports/share/applications/org.sketch.desktop";
  const std::string snap = "/var/lib/snapd/desktop/applications/org.sketch.desktop";
  const std::string hidden = kEntry + "Hidden=true\n"s;
  const std::string translations(100'000, '#');
  const struct {
    Files files;
    std::string found;
  } rows[] = {
      {{}, ""},
      {{{"/own/applications/org.sketch2.desktop", kEntry}}, ""},
      {{{"/own/applications/sub/org.sketch.desktop", kEntry}}, ""},
      {{{"/own/applications/org.sketch", kEntry}, {"/own/org.sketch.desktop", kEntry}}, ""},
      {{{own, kEntry}, {first, kEntry}}, own},
      {{{first, kEntry}, {second, kEntry}, {snap, kEntry}}, first},
      {{{second, kEntry}, {flatpakOwn, kEntry}}, second},
      {{{flatpakOwn, kEntry}, {flatpak, kEntry}, {snap, kEntry}}, flatpakOwn},
      {{{flatpak, kEntry}, {snap, kEntry}}, flatpak},
      {{{snap, kEntry}}, snap},
      {{{own, ""}}, own},

      {{{own, hidden}, {second, kEntry}}, ""},
      {{{own, kEntry}, {second, hidden}}, own},
      {{{own, kEntry + "Hidden=false\n"s}}, own},
      {{{own, kEntry + "Hidden = true \r\n"s}}, ""},
      {{{own, "# x\n\n  [Desktop Entry]\nHidden=true"}}, ""},
      {{{own, kEntry + translations + "\nHidden=true\n"}}, ""},
      {{{own, kEntry + "#Hidden=true\nHidden[de]=true\nXHidden=true\nHidden\n"s}}, own},
      {{{own, kEntry + "[Desktop Action New]\nHidden=true\n"s}}, own},
      {{{own, "Hidden=true\n[Other]\nHidden=true\n"s + kEntry}}, own},
  };
  for (const auto& row : rows) {
    clear();
    install(row.files);
    EXPECT_EQ(find("org.sketch"), row.found) << testing::PrintToString(row.files).substr(0, 1000);
  }
}

// Each row comes with a file that a lookup without care would take for the answer.
TEST_F(InstalledApplications, IdentifierIsAPlainName) {
  const std::string folder = "/own/applications/";
  const std::string longest(NAME_MAX - 8, 'x');
  const struct {
    std::string identifier;
    std::string file;
    bool found;
  } rows[] = {
      {"org.sketch", "org.sketch.desktop", true},
      {"\xc3\xa9 a'$(x)*", "\xc3\xa9 a'$(x)*.desktop", true},
      {longest, longest + ".desktop", true},
      {longest + "x", longest + "x", false},
      {std::string(100'000, 'x'), "x.desktop", false},
      {"", ".desktop", false},
      {".", "..desktop", false},
      {"..", "...desktop", false},
      {"sub/org.sketch", "sub/org.sketch.desktop", false},
      {"../applications/org.sketch", "org.sketch.desktop", false},
      {"org.sketch.desktop\0x"s, "org.sketch.desktop", false},
      {"org\nsketch", "org\nsketch.desktop", false},
      {"org\rsketch", "org\rsketch.desktop", false},
  };
  for (const auto& row : rows) {
    clear();
    root_.write(folder + row.file, kEntry);
    EXPECT_EQ(find(row.identifier), row.found ? folder + row.file : "") << row.identifier;
  }
}

TEST_F(InstalledApplications, WhatIsNoFileIsPassedOver) {
  const auto own = root_.prepare("/own/applications/org.sketch.desktop");
  root_.write("/second/applications/org.sketch.desktop", kEntry);
  const auto expectPassedOver = [&](const char* what) {
    EXPECT_EQ(find("org.sketch"), "/second/applications/org.sketch.desktop") << what;
    std::filesystem::remove(own);
  };
  ASSERT_EQ(::mkfifo(own.c_str(), 0600), 0);
  expectPassedOver("pipe");
  std::filesystem::create_directory(own);
  expectPassedOver("folder");
  std::filesystem::create_symlink(root_.path("/nowhere"), own);
  expectPassedOver("dangling link");
  std::filesystem::create_symlink(root_.path("/second/applications/org.sketch.desktop"), own);
  EXPECT_EQ(find("org.sketch"), "/own/applications/org.sketch.desktop") << "link to an entry";
}

TEST(DesktopEntries, FoldersFollowTheEnvironment) {
  using Folders = std::vector<std::string>;
  const Folders kSystem = {"/usr/local/share/applications/", "/usr/share/applications/"};
  const Folders kExported = {"/var/lib/flatpak/exports/share/applications/",
                             "/var/lib/snapd/desktop/applications/"};
  const Folders kHome = {"/h/.local/share/applications/",
                         "/h/.local/share/flatpak/exports/share/applications/"};
  const struct {
    const char* home;
    const char* dataHome;
    const char* dataDirs;
    std::vector<Folders> folders; // one after another
  } rows[] = {
      {nullptr, nullptr, nullptr, {kSystem, kExported}},
      {"h", "", "", {kSystem, kExported}},
      {"/h", nullptr, "", {{kHome[0]}, kSystem, {kHome[1]}, kExported}},
      {"/h", "relative", nullptr, {{kHome[0]}, kSystem, {kHome[1]}, kExported}},
      {"/h",
       "/d/",
       "/a:b::./c:/e//f",
       {{"/d/applications/", "/a/applications/"}, {"/e/f/applications/", kHome[1]}, kExported}},
      {"/h",
       "/usr/share/",
       "/usr/share:/usr//share:/var/lib/snapd/desktop",
       {{"/usr/share/applications/", kExported[1], kHome[1], kExported[0]}}},
  };
  for (const auto& row : rows) {
    const DesktopEntries entries([&row](const char* name) {
      if (name == "HOME"s) return row.home;
      return name == "XDG_DATA_HOME"s ? row.dataHome : row.dataDirs;
    });
    Folders expected;
    for (const auto& part : row.folders)
      expected.insert(expected.end(), part.begin(), part.end());
    EXPECT_EQ(entries.folders(), expected) << testing::PrintToString(row.dataDirs);
  }
}

} // namespace
} // namespace wrenvale::platform
