#include "platform/fake/FakeMenus.h"

#include <utility>

namespace wrenvale::platform {

namespace {

std::unique_ptr<Menu> weakly(std::weak_ptr<FakeMenu> menu);

class Item final : public MenuItem {
public:
  explicit Item(const std::shared_ptr<FakeMenuItem>& item)
      : item_(item) {}

  std::string title() const override { return item_->title; }
  void setTitle(std::string_view title) override { item_->title = title; }
  std::string action() const override { return item_->action; }
  std::unique_ptr<Menu> submenu() const override {
    return item_->submenu ? weakly(item_->submenu) : nullptr;
  }

private:
  const std::shared_ptr<FakeMenuItem> item_;
};

class WeakMenu final : public Menu {
public:
  explicit WeakMenu(std::weak_ptr<FakeMenu> menu)
      : menu_(std::move(menu)) {}

  std::vector<std::unique_ptr<MenuItem>> items() const override {
    std::vector<std::unique_ptr<MenuItem>> result;
    if (const auto menu = menu_.lock())
      for (const auto& item : menu->items)
        result.push_back(std::make_unique<Item>(item));
    return result;
  }

  void addItem(NewMenuItem item) override {
    if (const auto menu = menu_.lock())
      menu->add({.title = std::move(item.title),
                 .action = std::move(item.action),
                 .keyEquivalent = std::move(item.keyEquivalent),
                 .choose = std::move(item.choose)});
  }

  void addSeparator() override {
    if (const auto menu = menu_.lock()) menu->add({.title = "", .separator = true});
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
