#include "platform/Modules.h"
#include "platform/NetModule.h"
#include "platform/Platform.h"
#include "platform/linux/DefaultsPath.h"
#include "platform/linux/DesktopEntries.h"
#include "platform/linux/EnvironmentLocale.h"
#include "platform/linux/HostInfo.h"
#include "platform/linux/LinuxFileManager.h"
#include "platform/linux/LinuxKernel.h"
#include "platform/linux/LinuxMainBundle.h"
#include "platform/linux/LinuxUserDefaults.h"
#include "platform/linux/NetModuleLoader.h"
#include "platform/linux/SystemClock.h"
#include "platform/linux/SystemRandom.h"

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
