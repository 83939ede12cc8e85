#include "desktop/Modules.h"
#include "desktop/NetModule.h"
#include "desktop/linux/settings/DefaultsPath.h"
#include "desktop/linux/settings/LinuxUserDefaults.h"
#include "desktop/linux/system/DesktopEntries.h"
#include "desktop/linux/system/EnvironmentLocale.h"
#include "desktop/linux/system/HostInfo.h"
#include "desktop/linux/system/LinuxFileManager.h"
#include "desktop/linux/system/LinuxKernel.h"
#include "desktop/linux/system/LinuxMainBundle.h"
#include "desktop/linux/system/NetModuleLoader.h"
#include "desktop/linux/system/SystemClock.h"
#include "desktop/linux/system/SystemRandom.h"
#include "platform/Platform.h"

namespace wrenvale::platform {

namespace {

std::filesystem::path defaultsFileOf(const MainBundle& bundle) {
  const auto identifier = bundle.objectForInfoDictionaryKey("CFBundleIdentifier");
  const auto* text = identifier.string();
  return text ? defaultsFilePath(*text) : std::filesystem::path();
}

struct System {
  LinuxMainBundle mainBundle{hostInfoPlist()};
  LinuxUserDefaults userDefaults{defaultsFileOf(mainBundle)};
  EnvironmentLocale locale;
  LinuxKernel kernel;
  NetModuleLoader net{modulePath(kNetModuleFile)};
  DesktopEntries installedApplications;
  LinuxFileManager fileManager;
  SystemClock clock;
  SystemRandom random;

  const SystemParts parts{.mainBundle = mainBundle,
                          .userDefaults = userDefaults,
                          .locale = locale,
                          .kernel = kernel,
                          .urlLoading = net,
                          .encryption = net,
                          .json = net,
                          .installedApplications = installedApplications,
                          .fileManager = fileManager,
                          .clock = clock,
                          .random = random};
};

} // namespace

// Never destroyed: background work may use the parts until the process is gone.
const SystemParts& builtInSystemParts() {
  static auto& system = *new System;
  return system.parts;
}

} // namespace wrenvale::platform
