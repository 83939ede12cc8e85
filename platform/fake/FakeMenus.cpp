#include "platform/fake/FakeMenus.h"

#include <utility>

namespace wrenvale::platform {

namespace {

std::unique_ptr<Menu> weakly(std::weak_ptr<FakeMenu> menu);

class WeakMenu final : public Menu {
public:
  explicit WeakMenu(std::weak_ptr<FakeMenu> menu)
      : menu_(std::move(menu)) {}

  std::vector<MenuItem> items() const override {
    std::vector<MenuItem> result;
    if (const auto menu = menu_.lock())
      for (const auto& item : menu->items)
        result.push_back({.title = item->title,
                          .action = item->action,
                          .submenu = item->submenu ? weakly(item->submenu) : nullptr,
                          .setTitle = [item](std::string_view title) { item->title = title; }});
    return result;
  }

  void addItem(NewMenuItem item) override {
    if (const auto menu = menu_.lock())
      menu->add({.title = std::move(item.title),
                 .action = item.action,
                 .keyEquivalent = std::move(item.keyEquivalent),
                 .separator = item.action.empty(),
                 .choose = std::move(item.choose)});
  }

private:
  const std::weak_ptr<FakeMenu> menu_;
};

std::unique_ptr<Menu> weakly(std::weak_ptr<FakeMenu> menu) {
  return std::make_unique<WeakMenu>(std::move(menu));
}

} // namespace

std::vector<std::string> FakeMenu::titles() const {
  std::vector<std::string> result;
  for (const auto& item : items)
    result.push_back(item->separator ? "-" : item->title);
  return result;
}

bool FakeMenu::choose(std::string_view action) const {
  for (const auto& item : items)
    if (item->action == action && item->choose) {
      item->choose(nullptr);
      return true;
    }
  return false;
}

std::unique_ptr<Menu> FakeMenus::menu(HostMenu* menu) const {
  return menu ? weakly(menus_.at(menu)) : nullptr;
}

std::unique_ptr<Menu> FakeMenus::menuBar(HostMenuBar* menuBar) const {
  return menuBar ? weakly(menus_.at(menuBar)) : nullptr;
}

std::string FakeMenus::titleForText(std::string_view text) const {
  return "[" + std::string(text) + "]";
}

HostMenu* FakeMenus::hostMenu(const std::shared_ptr<FakeMenu>& shared) {
  menus_[shared.get()] = shared;
  return reinterpret_cast<HostMenu*>(shared.get());
}

HostMenuBar* FakeMenus::hostMenuBar(const std::shared_ptr<FakeMenu>& shared) {
  menus_[shared.get()] = shared;
  return reinterpret_cast<HostMenuBar*>(shared.get());
}

} // namespace wrenvale::platform
