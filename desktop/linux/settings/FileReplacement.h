// Replaces a file in one step: whoever opens it finds the old content or the new, whole, also after
// the machine lost its power.

#ifndef WRENVALE_DESKTOP_LINUX_SETTINGS_FILEREPLACEMENT_H
#define WRENVALE_DESKTOP_LINUX_SETTINGS_FILEREPLACEMENT_H

#include <optional>
#include <string>
#include <string_view>

#include "desktop/linux/settings/Files.h"

namespace wrenvale::platform {

struct FileReplacement {
  std::string target; // not a link
  std::string_view content;
  std::string moveOldTo = {}; // another name in the same folder for what is replaced; may be empty
};

/// Makes the replacement durable; nothing when it could not, with the old file as it was. The new
/// one has the old one's permissions and owner, or 0600 when there was none, and a later time of
/// modification. The new content is first written beside it, to a file of its own with
/// ".new-" in its name; one that a crash left there is removed by a later call.
std::optional<FileIdentity> replaceFile(const FileReplacement& replacement);

/// Makes the file durable as it is, in its folder; false when it could not.
bool synchronizeFile(const std::string& path);

/// Makes the folder and those above it that are missing, for the user alone; false when it cannot.
bool makeFolder(const std::string& path);

/// The folder that the file is in.
std::string folderOf(const std::string& path);

} // namespace wrenvale::platform

#endif
