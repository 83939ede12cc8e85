#include <wrenvale/KVXWrenvaleController.h>

#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "base/Guard.h"
#include "core/Identity.h"
#include "core/Service.h"
#include "menu/HelpMenu.h"
#include "platform/Platform.h"

namespace wrenvale {

// The host's menus.
struct KVXWrenvaleController::Menus {
  std::unique_ptr<platform::Menu> mainMenu;
  std::unique_ptr<platform::Menu> helpMenu;
};

namespace {

template <class T>
T& made(std::shared_ptr<T>& object) {
  if (!object) object = std::make_shared<T>();
  return *object;
}

std::optional<std::string> appName(const platform::Platform& platform) {
  return localizedName(platform.info, platform.application);
}

// Takes a menu, whatever its name says.
void _replaceAppNameInMenuItem(const platform::Platform& platform, const platform::Menu& menu) {
  const auto name = platform.menus.titleForText(appName(platform).value_or(""));
  for (const auto& item : menu.items()) {
    if (item.title.find(kAppNamePlaceholder) != std::string::npos)
      item.setTitle(withAppName(item.title, name));
  }
}

// `choose` is what an item does.
void addHelpMenuItems(const Service& service, platform::Menu& helpMenu,
                      const std::function<void(const HelpMenuAction&, QObject*)>& choose) {
  const auto& platform = service.platform();
  const HelpMenuNames names{.appName = appName(platform),
                            .vendorSiteName = service.vendorSiteName()};
  for (auto& item :
       helpMenuItems(hasHelpItem(helpMenu), names, platform.menus, platform.application)) {
    if (!item.action) {
      helpMenu.addItem({});
      continue;
    }
    helpMenu.addItem({.title = std::move(item.title),
                      .keyEquivalent = std::move(item.keyEquivalent),
                      .action = item.action->name,
                      .choose = [choose, &action = *item.action](QObject* sender) {
                        guarded([&] { choose(action, sender); });
                      }});
  }
}

} // namespace

KVXWrenvaleController::~KVXWrenvaleController() = default;

void KVXWrenvaleController::setMainMenu(QMenuBar* mainMenu) {
  guarded([&] { made(_menus).mainMenu = _service.platform().menus.menuBar(mainMenu); });
}

void KVXWrenvaleController::setHelpMenu(QMenu* helpMenu) {
  guarded([&] { made(_menus).helpMenu = _service.platform().menus.menu(helpMenu); });
}

// Replaces the names last, since translations of the new items may have the placeholder too. An
// item may outlive the controller, and knows by `alive` whether it did.
void KVXWrenvaleController::awakeFromNib() {
  guarded([&] {
    auto& menus = made(_menus);
    const std::weak_ptr<Menus> alive = _menus;
    const auto choose = [this, alive, &service = _service](const HelpMenuAction& action,
                                                           QObject* sender) {
      if (const auto held = alive.lock())
        (this->*action.action)(sender);
      else
        (service.*action.operation)();
    };
    if (menus.helpMenu) addHelpMenuItems(_service, *menus.helpMenu, choose);
    if (!menus.mainMenu) return;
    for (const auto& item : menus.mainMenu->items())
      if (item.submenu) _replaceAppNameInMenuItem(_service.platform(), *item.submenu);
  });
}

void KVXWrenvaleController::rateOnMacAppStoreAction(QObject*) {
  _service.rateApp();
}

void KVXWrenvaleController::openSupportWebPageAction(QObject*) {
  _service.openSupportWebPage();
}

void KVXWrenvaleController::openKVXWebPageAction(QObject*) {
  _service.openKVXWebPage();
}

void KVXWrenvaleController::openGeneralSupportAction(QObject*) {
  _service.openGeneralSupport();
}

void KVXWrenvaleController::followOnTwitterAction(QObject*) {
  _service.followOnTwitter();
}

void KVXWrenvaleController::subscribeToNewsLetterAction(QObject*) {
  _service.subscribeToNewsletter();
}

void KVXWrenvaleController::moreAppsAction(QObject*) {
  _service.moreApps();
}

} // namespace wrenvale
