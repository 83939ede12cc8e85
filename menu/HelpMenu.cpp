#include "menu/HelpMenu.h"

#include <wrenvale/KVXWrenvaleController.h>

#include <algorithm>

#include "core/Identity.h"
#include "core/Service.h"

namespace wrenvale {

namespace {

using C = KVXWrenvaleController;
using S = Service;

constexpr HelpMenuAction kOpenSupportWebPage = {
    "openSupportWebPageAction:", &C::openSupportWebPageAction, &S::openSupportWebPage};
constexpr HelpMenuAction kOpenKVXWebPage = {"openKVXWebPageAction:", &C::openKVXWebPageAction,
                                            &S::openKVXWebPage};

// Between the first item and the last; an empty one is a separator.
constexpr struct {
  std::string_view english{};
  HelpMenuAction action{};
} kItems[] = {
    {},
    {.english = "Rate on Mac App Store",
     .action = {"rateOnMacAppStoreAction:", &C::rateOnMacAppStoreAction, &S::rateApp}},
    {},
    {.english = "Subscribe to Newsletter",
     .action = {"subscribeToNewsLetterAction:", &C::subscribeToNewsLetterAction,
                &S::subscribeToNewsletter}},
    {.english = "Follow on Twitter",
     .action = {"followOnTwitterAction:", &C::followOnTwitterAction, &S::followOnTwitter}},
    {.english = "More Apps by Brenmoor",
     .action = {"moreAppsAction:", &C::moreAppsAction, &S::moreApps}},
    {},
    {.english = "Support",
     .action = {"openGeneralSupportAction:", &C::openGeneralSupportAction, &S::openGeneralSupport}},
    {},
};

// A translation is written as a title; the English text is shown as it is.
struct LocalizedTitle {
  const platform::Menus& menus;
  const platform::Application& application;

  std::string operator()(const std::string& english) const {
    auto text = localizedText(application, english);
    return text == english ? menus.titleForText(english) : text;
  }
};

} // namespace

bool hasHelpItem(const platform::Menu& menu) {
  const auto items = menu.items();
  return std::any_of(items.begin(), items.end(),
                     [](const auto& item) { return item.action == "showHelp:"; });
}

std::vector<HelpMenuItem> helpMenuItems(bool alreadyHasHelp, const HelpMenuNames& names,
                                        const platform::Menus& menus,
                                        const platform::Application& application) {
  const LocalizedTitle localizedTitle{menus, application};
  std::vector<HelpMenuItem> items;
  if (!alreadyHasHelp) {
    const auto appName = menus.titleForText(names.appName.value_or("(null)"));
    items.push_back({&kOpenSupportWebPage, appName + " " + localizedTitle("Help"), "?"});
  }
  for (const auto& [english, action] : kItems) {
    if (english.empty())
      items.push_back({});
    else
      items.push_back({&action, localizedTitle(std::string(english)), ""});
  }
  items.push_back(
      {&kOpenKVXWebPage, localizedTitle("Visit " + std::string(names.vendorSiteName)), ""});
  return items;
}

std::string withAppName(std::string title, std::string_view appName) {
  std::size_t at = 0;
  while ((at = title.find(kAppNamePlaceholder, at)) != std::string::npos) {
    title.replace(at, kAppNamePlaceholder.size(), appName);
    at += appName.size();
  }
  return title;
}

} // namespace wrenvale
