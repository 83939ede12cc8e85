#include "desktop/qt/app/QtMenus.h"

#include <utility>

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>

#include "desktop/qt/app/Toolkit.h"

namespace wrenvale::platform {

namespace {

bool isStandardHelp(const QAction& action) {
  if (action.objectName() == QLatin1String("showHelp")) return true;
  const auto keys = QKeySequence::keyBindings(QKeySequence::HelpContents);
  for (const auto& key : action.shortcuts())
    if (keys.contains(key)) return true;
  return false;
}

// A menu bar holds actions as a menu does.
class QtMenu final : public Menu {
public:
  explicit QtMenu(QWidget* menu)
      : menu_(menu) {}

  std::vector<MenuItem> items() const override {
    std::vector<MenuItem> result;
    if (menu_)
      for (auto* action : menu_->actions())
        result.push_back(itemFrom(*action));
    return result;
  }

  void addItem(NewMenuItem item) override {
    if (!menu_) return;
    auto* action = new QAction(fromUTF8(item.title), menu_);
    action->setSeparator(item.action.empty());
    action->setObjectName(fromUTF8(item.action).chopped(1));
    action->setMenuRole(QAction::NoRole);
    if (!item.keyEquivalent.empty()) action->setShortcut("Ctrl+" + fromUTF8(item.keyEquivalent));
    if (item.choose)
      QObject::connect(action, &QAction::triggered, action,
                       [action, choose = std::move(item.choose)] { choose(action); });
    menu_->addAction(action);
  }

private:
  static MenuItem itemFrom(QAction& action) {
    auto* submenu = action.menu<QMenu*>();
    return {.title = action.text().toStdString(),
            .action = isStandardHelp(action) ? "showHelp:" : "",
            .submenu = submenu ? std::make_unique<QtMenu>(submenu) : nullptr,
            .setTitle = [action = QPointer(&action)](std::string_view title) {
              if (action) action->setText(fromUTF8(title));
            }};
  }

  const QPointer<QWidget> menu_;
};

std::unique_ptr<Menu> weakly(QWidget* menu) {
  return menu ? std::make_unique<QtMenu>(menu) : nullptr;
}

} // namespace

std::unique_ptr<Menu> QtMenus::menu(HostMenu* menu) const {
  return weakly(menu);
}

std::unique_ptr<Menu> QtMenus::menuBar(HostMenuBar* menuBar) const {
  return weakly(menuBar);
}

// A menu shows what follows a tab as the item's key.
std::string QtMenus::titleForText(std::string_view text) const {
  std::string title;
  for (const char character : text) {
    if (character == '&') title += '&';
    title += character == '\t' ? ' ' : character;
  }
  return title;
}

} // namespace wrenvale::platform
