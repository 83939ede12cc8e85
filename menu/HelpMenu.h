// What the Help menu gets: which items, in which order, under which titles.

#ifndef WRENVALE_MENU_HELPMENU_H
#define WRENVALE_MENU_HELPMENU_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Application.h"
#include "platform/Menus.h"

namespace wrenvale {

class Service;
class KVXWrenvaleController;

/// What choosing an item does: the controller's action, and the operation of the service that it
/// stands for.
struct HelpMenuAction {
  const char* name;
  void (KVXWrenvaleController::*action)(::QObject* sender);
  void (Service::*operation)();
};

struct HelpMenuItem {
  const HelpMenuAction* action = nullptr; ///< null for a separator
  std::string title;
  std::string keyEquivalent;
};

/// The names that occur in titles, as plain text.
struct HelpMenuNames {
  std::optional<std::string> appName;
  std::string_view vendorSiteName;
};

/// Whether the menu has an item for the host's own help.
bool hasHelpItem(const platform::Menu& menu);

/// The items to append, in order; the item for help comes first unless there is one already.
std::vector<HelpMenuItem> helpMenuItems(bool alreadyHasHelp, const HelpMenuNames& names,
                                        const platform::Menus& menus,
                                        const platform::Application& application);

inline constexpr std::string_view kAppNamePlaceholder = "#app_name";

/// The title with every "#app_name" replaced by the name; what the name itself says is left alone.
std::string withAppName(std::string title, std::string_view appName);

} // namespace wrenvale

#endif
