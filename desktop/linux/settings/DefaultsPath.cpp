#include "desktop/linux/settings/DefaultsPath.h"

#include "desktop/linux/system/Text.h"

namespace wrenvale::platform {

namespace {

std::filesystem::path absolutePath(const Environment& environment, const char* name) {
  const auto value = variable(environment, name);
  return value.starts_with('/') ? std::filesystem::path(value) : std::filesystem::path();
}

std::filesystem::path configurationFolder(const Environment& environment) {
  const auto folder = absolutePath(environment, "XDG_CONFIG_HOME");
  if (!folder.empty()) return folder;
  const auto home = absolutePath(environment, "HOME");
  return home.empty() ? home : home / ".config";
}

} // namespace

std::filesystem::path defaultsFilePath(std::string_view bundleIdentifier,
                                       const Environment& environment) {
  const auto folder = configurationFolder(environment);
  if (folder.empty() || !isPlainFileName(bundleIdentifier)) return {};
  return folder / bundleIdentifier / "defaults.plist";
}

} // namespace wrenvale::platform
