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
  // The answer, once these files alone are there, as a path in the test's folder; empty without.
  std::string find(std::string_view identifier, const Files& files) const {
    for (const auto& item : std::filesystem::directory_iterator(root_.path()))
      std::filesystem::remove_all(item);
    for (const auto& [name, content] : files)
      root_.write(name, content);
    return find(identifier);
  }
  std::string find(std::string_view identifier) const {
    const std::map<std::string, std::string> variables = {
        {"HOME", root_.path("/home")},
        {"XDG_DATA_HOME", root_.path("/own")},
        {"XDG_DATA_DIRS", root_.path("/first") + ":" + root_.path("/second")}};
    const DesktopEntries desktop([&](const char* name) { return variables.at(name).c_str(); },
                                 root_.path());
    const auto found = desktop.URLForApplicationWithBundleIdentifier(identifier);
    return found ? found->substr(root_.path().size()) : "";
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
  const std::pair<Files, std::string> rows[] = {
      {{{"/own/applications/sub/org.sketch.desktop", kEntry},
        {"/own/applications/org.sketch", kEntry},
        {"/own/org.sketch.desktop", kEntry}},
       ""},
      {{{own, ""}, {first, kEntry}}, own},
      {{{first, kEntry}, {second, kEntry}, {snap, kEntry}}, first},
      {{{flatpakOwn, kEntry}, {flatpak, kEntry}}, flatpakOwn},

      {{{own, kEntry + "Hidden=true\n"s}, {second, kEntry}}, ""},
      {{{own, kEntry + "Hidden=false\n"s}}, own},
      {{{own, kEntry + "Hidden = true \r\n"s}}, ""},
      {{{own, "# x\n\n  [Desktop Entry]\nHidden=true"}}, ""},
      {{{own, kEntry + std::string(100'000, '#') + "\nHidden=true\n"}}, ""},
      {{{own, kEntry + "#Hidden=true\nHidden[de]=true\nXHidden=true\nHidden\n"s}}, own},
      {{{own, "Hidden=true\n[Other]\nHidden=true\n"s + kEntry + "[More]\nHidden=true\n"}}, own},
  };
  for (const auto& [files, found] : rows)
    EXPECT_EQ(find("org.sketch", files), found) << testing::PrintToString(files).substr(0, 1000);
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
      {"\xc3\xa9 a'$(x)*", "\xc3\xa9 a'$(x)*.desktop", true},
      {longest, longest + ".desktop", true},
      {longest + "x", longest + "x", false},
      {"", ".desktop", false},
      {"..", "...desktop", false},
      {"sub/org.sketch", "sub/org.sketch.desktop", false},
      {"../applications/org.sketch", "org.sketch.desktop", false},
      {"org.sketch.desktop\0x"s, "org.sketch.desktop", false},
      {"org\nsketch", "org\nsketch.desktop", false},
  };
  for (const auto& row : rows)
    EXPECT_EQ(find(row.identifier, {{folder + row.file, kEntry}}),
              row.found ? folder + row.file : "")
        << row.identifier;
}

TEST_F(InstalledApplications, WhatIsNoFileIsPassedOver) {
  const std::string second = "/second/applications/org.sketch.desktop";
  const std::string own = root_.prepare("/own/applications/org.sketch.desktop");
  root_.write(second, kEntry);
  ASSERT_EQ(::mkfifo(own.c_str(), 0600), 0);
  EXPECT_EQ(find("org.sketch"), second) << "pipe";
  std::filesystem::remove(own);
  std::filesystem::create_directory(own);
  EXPECT_EQ(find("org.sketch"), second) << "folder";
  std::filesystem::remove(own);
  std::filesystem::create_symlink(root_.path(second), own);
  EXPECT_EQ(root_.path(find("org.sketch")), own) << "link to an entry";
}

TEST(DesktopEntries, FoldersFollowTheEnvironment) {
  const auto system = "/usr/local/share/applications/ /usr/share/applications/ "s;
  const auto flatpak = "/var/lib/flatpak/exports/share/applications/ "s;
  const auto snap = "/var/lib/snapd/desktop/applications/ "s;
  const auto flatpakHome = "/h/.local/share/flatpak/exports/share/applications/ "s;
  const struct {
    const char* home;
    const char* dataHome;
    const char* dataDirs;
    std::string folders; // a blank behind each
  } rows[] = {
      {nullptr, nullptr, nullptr, system + flatpak + snap},
      {"h", "", "", system + flatpak + snap},
      {"/h", "relative", "",
       "/h/.local/share/applications/ " + system + flatpakHome + flatpak + snap},
      {"/h", "/d/", "/a:b::./c:/e//f:/a//:/var/lib/snapd/desktop",
       "/d/applications/ /a/applications/ /e/f/applications/ " + snap + flatpakHome + flatpak},
  };
  for (const auto& row : rows) {
    const DesktopEntries entries([&row](const char* name) {
      return name == "HOME"s ? row.home : name == "XDG_DATA_HOME"s ? row.dataHome : row.dataDirs;
    });
    std::string folders;
    for (const auto& folder : entries.folders())
      folders += folder + " ";
    EXPECT_EQ(folders, row.folders);
  }
}

} // namespace
} // namespace wrenvale::platform
