#include "desktop/linux/system/DesktopEntries.h"

#include <algorithm>
#include <climits>
#include <filesystem>

#include "desktop/linux/settings/Files.h"
#include "desktop/linux/system/Environment.h"

namespace wrenvale::platform {

namespace {

constexpr std::string_view kSuffix = ".desktop";
// Entries with all their translations stay well below.
constexpr std::size_t kLongestEntry = 256UL * 1024;

bool mayNameAnEntry(std::string_view identifier) {
  return isPlainFileName(identifier) && identifier.size() + kSuffix.size() <= NAME_MAX;
}

bool saysHidden(std::string_view line) {
  if (!line.starts_with("Hidden")) return false;
  const auto key = trimmed(takeUpTo('=', line));
  return key == "Hidden" && trimmed(line) == "true";
}

bool isHidden(std::string_view entry) {
  bool inMainGroup = false;
  while (!entry.empty()) {
    const auto line = trimmed(takeUpTo('\n', entry));
    if (line.starts_with('['))
      inMainGroup = line == "[Desktop Entry]";
    else if (inMainGroup && saysHidden(line))
      return true;
  }
  return false;
}

} // namespace

DesktopEntries::DesktopEntries(const Environment& environment, const std::string& root) {
  const auto home = variable(environment, "HOME");
  const auto ownData = home.empty() ? "" : std::string(home) + "/.local/share";
  const auto dataHome = variable(environment, "XDG_DATA_HOME");
  addFolder(dataHome.starts_with('/') ? dataHome : ownData);
  if (const auto listed = variable(environment, "XDG_DATA_DIRS"); !listed.empty()) {
    addFolders(listed);
  } else {
    addFolder(root + "/usr/local/share");
    addFolder(root + "/usr/share");
  }
  if (!ownData.empty()) addFolder(ownData + "/flatpak/exports/share");
  addFolder(root + "/var/lib/flatpak/exports/share");
  addFolder(root + "/var/lib/snapd/desktop");
}

void DesktopEntries::addFolders(std::string_view dataDirectories) {
  while (!dataDirectories.empty())
    addFolder(takeUpTo(':', dataDirectories));
}

// A relative directory is left out, as it would mean another one in each program.
void DesktopEntries::addFolder(std::string_view dataDirectory) {
  if (!dataDirectory.starts_with('/')) return;
  const std::filesystem::path path(dataDirectory);
  auto folder = (path / "applications" / "").lexically_normal().string();
  if (std::ranges::find(folders_, folder) != folders_.end()) return;
  longestFolder_ = std::max(longestFolder_, folder.size());
  folders_.push_back(std::move(folder));
}

std::optional<std::string>
DesktopEntries::URLForApplicationWithBundleIdentifier(std::string_view bundleIdentifier) const {
  if (!mayNameAnEntry(bundleIdentifier)) return std::nullopt;
  std::string path;
  path.reserve(longestFolder_ + bundleIdentifier.size() + kSuffix.size());
  for (const auto& folder : folders_) {
    path.assign(folder).append(bundleIdentifier).append(kSuffix);
    const auto entry = beginningOfFile(path.c_str(), kLongestEntry);
    if (entry) return isHidden(*entry) ? std::nullopt : std::optional(std::move(path));
  }
  return std::nullopt;
}

} // namespace wrenvale::platform
