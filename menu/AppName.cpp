#include "menu/AppName.h"

namespace wrenvale {

std::string withAppName(std::string title, std::string_view appName) {
  std::size_t at = 0;
  while ((at = title.find(kAppNamePlaceholder, at)) != std::string::npos) {
    title.replace(at, kAppNamePlaceholder.size(), appName);
    at += appName.size();
  }
  return title;
}

} // namespace wrenvale
