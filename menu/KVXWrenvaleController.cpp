#include <wrenvale/KVXWrenvaleController.h>

#include <utility>

#include <wrenvale/KVXWrenvale.h>

#include "core/Guard.h"
#include "core/Identity.h"
#include "menu/AppName.h"
#include "menu/HelpMenu.h"
#include "platform/Platform.h"

namespace wrenvale {

KVXWrenvaleController::KVXWrenvaleController(KVXWrenvale& service,
                                             const platform::Platform& platform,
                                             std::string_view vendorSiteName)
    : _service(service)
    , _platform(platform)
    , _vendorSiteName(vendorSiteName)
    , _self(std::make_shared<KVXWrenvaleController*>(this)) {}

KVXWrenvaleController::~KVXWrenvaleController() = default;

void KVXWrenvaleController::setMainMenu(QMenuBar* mainMenu) {
  guarded([&] { _mainMenu = _platform.menus.menuBar(mainMenu); });
}

void KVXWrenvaleController::setHelpMenu(QMenu* helpMenu) {
  guarded([&] { _helpMenu = _platform.menus.menu(helpMenu); });
}

// The names come last, so that the new items' translations may have the placeholder too.
void KVXWrenvaleController::awakeFromNib() {
  guarded([&] {
    if (_helpMenu) addHelpMenuItems();
    if (!_mainMenu) return;
    for (const auto& item : _mainMenu->items())
      _replaceAppNameInMenuItem(item->submenu());
  });
}

void KVXWrenvaleController::addHelpMenuItems() {
  const HelpMenuNames names{.appName = appName(), .vendorSiteName = _vendorSiteName};
  for (auto& item :
       helpMenuItems(hasHelpItem(*_helpMenu), names, _platform.menus, _platform.localization)) {
    if (!item.action) {
      _helpMenu->addSeparator();
      continue;
    }
    const std::weak_ptr<KVXWrenvaleController*> controller = _self;
    const auto choose = [controller, &service = _service, &todo = *item.action](QObject* sender) {
      const auto alive = controller.lock();
      guarded([&] { alive ? ((*alive)->*todo.action)(sender) : (service.*todo.operation)(); });
    };
    _helpMenu->addItem({.title = std::move(item.title),
                        .keyEquivalent = std::move(item.keyEquivalent),
                        .action = item.action->name,
                        .choose = choose});
  }
}

// Takes a menu, whatever its name says.
void KVXWrenvaleController::_replaceAppNameInMenuItem(
    const std::unique_ptr<platform::Menu>& menu) const {
  if (!menu) return;
  const auto name = _platform.menus.titleForText(appName().value_or(""));
  for (const auto& item : menu->items()) {
    const auto title = item->title();
    if (title.find(kAppNamePlaceholder) != std::string::npos)
      item->setTitle(withAppName(title, name));
  }
}

std::optional<std::string> KVXWrenvaleController::appName() const {
  return localizedName(_platform.mainBundle, _platform.localization);
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
