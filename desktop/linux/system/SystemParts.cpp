#include "desktop/Modules.h"
#include "desktop/linux/settings/DefaultsFile.h"
#include "desktop/linux/settings/LinuxUserDefaults.h"
#include "desktop/linux/system/DesktopEntries.h"
#include "desktop/linux/system/EnvironmentLocale.h"
#include "desktop/linux/system/HostInfo.h"
#include "desktop/linux/system/LinuxSystem.h"
#include "desktop/linux/system/NetModuleLoader.h"
#include "platform/Platform.h"

namespace wrenvale::platform {

namespace {

std::filesystem::path defaultsFileOf(const Value::Dictionary& info) {
  const auto found = info.find("CFBundleIdentifier");
  const auto* identifier = found == info.end() ? nullptr : found->second.string();
  return identifier ? defaultsFilePath(*identifier) : std::filesystem::path();
}

struct Parts {
  const Value::Dictionary info = hostInfo();
  LinuxUserDefaults userDefaults{defaultsFileOf(info)};
  LinuxSystem system;
  EnvironmentLocale locale;
  DesktopEntries installedApplications;
  NetModuleLoader net{modulePath(kNetModuleFile)};

  const SystemParts all{.info = info,
                        .userDefaults = userDefaults,
                        .system = system,
                        .locale = locale,
                        .installedApplications = installedApplications,
                        .urlLoading = net,
                        .encryption = net,
                        .json = net};
};

// Never destroyed: background work may use the parts until the process is gone.
Parts& parts() {
  static auto& parts = *new Parts;
  return parts;
}

} // namespace

std::unique_ptr<UserDefaults> makeUserDefaults(std::string_view bundleIdentifier) {
  return std::make_unique<LinuxUserDefaults>(defaultsFilePath(bundleIdentifier));
}

const SystemParts& builtInSystemParts() {
  return parts().all;
}

void cancelAllRequests() {
  parts().net.cancelAllRequests();
}

} // namespace wrenvale::platform
