#include "menu/HelpMenu.h"

#include <algorithm>

#include <wrenvale/KVXWrenvale.h>
#include <wrenvale/KVXWrenvaleController.h>

#include "core/LocalizedText.h"

namespace wrenvale {

namespace {

using C = KVXWrenvaleController;
using S = KVXWrenvale;

constexpr HelpMenuAction kOpenSupportWebPage = {
    "openSupportWebPageAction:", &C::openSupportWebPageAction, &S::openSupportWebPage};
constexpr HelpMenuAction kOpenKVXWebPage = {"openKVXWebPageAction:", &C::openKVXWebPageAction,
                                            &S::openKVXWebPage};

// Between the first item and the last; an empty text is a separator.
constexpr struct {
  std::string_view text;
  HelpMenuAction action;
} kItems[] = {
    {"", {}},
    {"Rate on Mac App Store",
     {"rateOnMacAppStoreAction:", &C::rateOnMacAppStoreAction, &S::rateApp}},
    {"", {}},
    {"Subscribe to Newsletter",
     {"subscribeToNewsLetterAction:", &C::subscribeToNewsLetterAction, &S::subscribeToNewsletter}},
    {"Follow on Twitter",
     {"followOnTwitterAction:", &C::followOnTwitterAction, &S::followOnTwitter}},
    {"More Apps by Brenmoor", {"moreAppsAction:", &C::moreAppsAction, &S::moreApps}},
    {"", {}},
    {"Support",
     {"openGeneralSupportAction:", &C::openGeneralSupportAction, &S::openGeneralSupport}},
    {"", {}},
};

// A translation is written as a title; the English text is shown as it is.
struct Titles {
  const platform::Menus& menus;
  const platform::Localization& localization;

  std::string operator()(const std::string& english) const {
    auto text = localizedText(localization, english);
    return text == english ? menus.titleForText(english) : text;
  }
};

} // namespace

bool hasHelpItem(const platform::Menu& menu) {
  const auto items = menu.items();
  return std::any_of(items.begin(), items.end(),
                     [](const auto& item) { return item->action() == "showHelp:"; });
}

std::vector<HelpMenuItem> helpMenuItems(bool alreadyHasHelp, const HelpMenuNames& names,
                                        const platform::Menus& menus,
                                        const platform::Localization& localization) {
  const Titles title{menus, localization};
  std::vector<HelpMenuItem> items;
  if (!alreadyHasHelp) {
    const auto appName = menus.titleForText(names.appName.value_or("(null)"));
    items.push_back({&kOpenSupportWebPage, appName + " " + title("Help"), "?"});
  }
  for (const auto& [text, action] : kItems) {
    if (text.empty())
      items.push_back({});
    else
      items.push_back({&action, title(std::string(text)), ""});
  }
  items.push_back({&kOpenKVXWebPage, title("Visit " + std::string(names.vendorSiteName)), ""});
  return items;
}

} // namespace wrenvale
