// The framework's own parts in a benchmark's process: as in the library, but for settings in a
// folder that the benchmark names, and started when the benchmark says so.

#ifndef WRENVALE_BENCHMARKS_FRAMEWORK_H
#define WRENVALE_BENCHMARKS_FRAMEWORK_H

#include <string>

#include "core/Service.h"
#include "desktop/linux/settings/LinuxUserDefaults.h"
#include "desktop/linux/system/DesktopEntries.h"
#include "desktop/linux/system/EnvironmentLocale.h"
#include "desktop/linux/system/LinuxSystem.h"
#include "desktop/linux/system/NetModuleLoader.h"
#include "desktop/qt/app/QtApplication.h"
#include "desktop/qt/app/QtMenus.h"
#include "desktop/qt/app/QtQueues.h"
#include "desktop/qt/app/QtWindows.h"
#include "platform/Platform.h"

namespace wrenvale::benchmark {

inline constexpr const char* kBundleID = "com.example.benchmark";
inline constexpr std::int64_t kBuild = 1000;

/// Never destroyed, as in a host.
struct Framework {
  explicit Framework(const std::string& folder)
      : userDefaults(folder + "/defaults.plist") {}

  const Value::Dictionary info{{"CFBundleIdentifier", kBundleID},
                               {"CFBundleName", "Benchmark"},
                               {"CFBundleVersion", kBuild}};
  platform::LinuxUserDefaults userDefaults;
  platform::LinuxSystem system;
  platform::EnvironmentLocale locale;
  platform::DesktopEntries installedApplications;
  platform::NetModuleLoader net{NET_MODULE};
  platform::QtQueues queues{[] {}};
  platform::QtApplication application{userDefaults};
  platform::QtWindows windows{""};
  platform::QtMenus menus;
  const platform::Platform platform{
      {info, userDefaults, system, locale, installedApplications, net, net, net},
      queues.mainQueue(),
      queues.globalQueue(),
      queues.serialQueue(),
      application,
      windows,
      menus};
  Service service{platform, builtInConfiguration()};
};

} // namespace wrenvale::benchmark

#endif
