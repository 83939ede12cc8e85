// The host's menus, as Qt's.

#ifndef WRENVALE_DESKTOP_QT_APP_QTMENUS_H
#define WRENVALE_DESKTOP_QT_APP_QTMENUS_H

#include "platform/Menus.h"

namespace wrenvale::platform {

/// The standard help item is one with the object name "showHelp", or with a key that the desktop
/// has for help. The object name of an added item is its action's name without the colon.
class QtMenus : public Menus {
public:
  std::unique_ptr<Menu> menu(HostMenu* menu) const override;
  std::unique_ptr<Menu> menuBar(HostMenuBar* menuBar) const override;
  std::string titleForText(std::string_view text) const override;
};

} // namespace wrenvale::platform

#endif
