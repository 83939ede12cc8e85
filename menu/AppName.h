// The host's name in the titles of its menus.

#ifndef WRENVALE_MENU_APPNAME_H
#define WRENVALE_MENU_APPNAME_H

#include <string>
#include <string_view>

namespace wrenvale {

inline constexpr std::string_view kAppNamePlaceholder = "#app_name";

/// The title with every "#app_name" replaced by the name; what the name itself says is left alone.
std::string withAppName(std::string title, std::string_view appName);

} // namespace wrenvale

#endif
