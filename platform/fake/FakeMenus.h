// Menus that a test fills and reads, and chooses from as a user would.

#ifndef WRENVALE_PLATFORM_FAKE_FAKEMENUS_H
#define WRENVALE_PLATFORM_FAKE_FAKEMENUS_H

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/Menus.h"

namespace wrenvale::platform {

struct FakeMenu;

struct FakeMenuItem {
  std::string title;
  std::string action{}; ///< empty for a separator, too
  std::string keyEquivalent{};
  bool separator = false;
  std::shared_ptr<FakeMenu> submenu{};
  std::function<void(::QObject*)> choose{};
};

/// A menu or a menu bar. Items of the test's own may be changed, but not removed.
struct FakeMenu {
  std::vector<std::shared_ptr<FakeMenuItem>> items;

  void add(FakeMenuItem item) { items.push_back(std::make_shared<FakeMenuItem>(std::move(item))); }
  /// One line for each item: its title, "-" for a separator.
  std::vector<std::string> titles() const;
  /// Chooses the first item with this action; false when there is none.
  bool choose(std::string_view action) const;
};

/// Titles mark plain text with brackets, so that a test sees what was put in as such.
class FakeMenus : public Menus {
public:
  std::unique_ptr<Menu> menu(HostMenu* menu) const override;
  std::unique_ptr<Menu> menuBar(HostMenuBar* menuBar) const override;
  std::string titleForText(std::string_view text) const override;

  /// The pointers under which the host knows a menu that is `shared`.
  HostMenu* hostMenu(const std::shared_ptr<FakeMenu>& shared);
  HostMenuBar* hostMenuBar(const std::shared_ptr<FakeMenu>& shared);

private:
  std::map<const void*, std::weak_ptr<FakeMenu>> menus_;
};

} // namespace wrenvale::platform

#endif
