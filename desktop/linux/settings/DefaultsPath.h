// Where the settings of a host are kept.

#ifndef WRENVALE_DESKTOP_LINUX_SETTINGS_DEFAULTSPATH_H
#define WRENVALE_DESKTOP_LINUX_SETTINGS_DEFAULTSPATH_H

#include <cstdlib>
#include <filesystem>
#include <string_view>

#include "desktop/linux/system/Environment.h"

namespace wrenvale::platform {

/// ${XDG_CONFIG_HOME:-$HOME/.config}/<bundle identifier>/defaults.plist. A variable that is no
/// absolute path counts as not set. Empty when there is no folder to be in, or the identifier is no
/// plain file name.
std::filesystem::path defaultsFilePath(std::string_view bundleIdentifier,
                                       const Environment& environment = std::getenv);

} // namespace wrenvale::platform

#endif
