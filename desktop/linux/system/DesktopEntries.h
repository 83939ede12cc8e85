// Which applications are installed, told by their desktop entries.
//
// An application counts as installed when a file `<bundle identifier>.desktop` stands in the
// `applications` folder of one of the data directories of the desktop: XDG_DATA_HOME, XDG_DATA_DIRS
// and, because a session does not always list them, those that Flatpak and Snap export to. The
// first of these directories that has the file decides: an entry that says `Hidden=true` there
// hides the same name in the later ones. Entries in folders below `applications` are not looked at.

#ifndef WRENVALE_DESKTOP_LINUX_SYSTEM_DESKTOPENTRIES_H
#define WRENVALE_DESKTOP_LINUX_SYSTEM_DESKTOPENTRIES_H

#include <cstdlib>
#include <vector>

#include "desktop/linux/system/Environment.h"
#include "platform/System.h"

namespace wrenvale::platform {

class DesktopEntries final : public InstalledApplications {
public:
  /// Reads the environment here and never again. The files themselves are asked for anew by every
  /// question. `root` is put before the directories of the system itself (not before those that the
  /// environment names); empty for the running system.
  explicit DesktopEntries(const Environment& environment = &::getenv, const std::string& root = {});

  /// The path of the desktop entry. An identifier that cannot be part of a file name (empty, ".",
  /// "..", longer than a file name, or with "/", a line break or a zero byte in it) is answered
  /// without asking the system; any other costs one system call for each directory without it.
  std::optional<std::string>
  URLForApplicationWithBundleIdentifier(std::string_view bundleIdentifier) const override;

  /// The folders that are looked through, the most important first, each once, ending in "/".
  const std::vector<std::string>& folders() const { return folders_; }

private:
  void addFolder(std::string_view dataDirectory);
  void addFolders(std::string_view dataDirectories);

  std::vector<std::string> folders_;
  std::size_t longestFolder_ = 0;
};

} // namespace wrenvale::platform

#endif
