// The host's menus, as the Help-menu controller reads and extends them. Main thread only.

#ifndef WRENVALE_PLATFORM_MENUS_H
#define WRENVALE_PLATFORM_MENUS_H

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class QMenu;
class QMenuBar;
class QObject;

namespace wrenvale::platform {

using HostMenu = ::QMenu;
using HostMenuBar = ::QMenuBar;

class Menu;

/// An item of a menu as it is now; separators and items that show something of the host's own are
/// items too. A title is in the toolkit's notation: it may mark an access key, or say more than is
/// shown.
struct MenuItem {
  std::string title;
  std::string action{};            ///< "showHelp:" for the application's standard help item
  std::unique_ptr<Menu> submenu{}; ///< null when the item has none
  /// Changes nothing but the title; does nothing once the host has deleted the item.
  std::function<void(std::string_view)> setTitle{};
};

/// An item that is to be added; one without an action is a separator.
struct NewMenuItem {
  std::string title{};
  std::string keyEquivalent{}; ///< pressed together with the Command modifier; empty for none
  std::string action{};        ///< the name that the item is found by; ends in a colon
  /// Called with the item each time that the user chooses it; does not throw.
  std::function<void(::QObject* sender)> choose{};
};

/// A menu or a menu bar of the host's, held weakly: one that the host has deleted has no items and
/// takes none.
class Menu {
public:
  virtual ~Menu() = default;

  /// The items that there are now, in order.
  virtual std::vector<MenuItem> items() const = 0;
  /// Adds at the end; what is added belongs to the menu.
  virtual void addItem(NewMenuItem item) = 0;
};

class Menus {
public:
  virtual ~Menus() = default;

  /// Null for null.
  virtual std::unique_ptr<Menu> menu(HostMenu* menu) const = 0;
  virtual std::unique_ptr<Menu> menuBar(HostMenuBar* menuBar) const = 0;

  /// Plain text in the notation of titles: what the user sees is exactly this text.
  virtual std::string titleForText(std::string_view text) const = 0;
};

} // namespace wrenvale::platform

#endif
