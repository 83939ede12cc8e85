// The platform of this library: the system parts and what Qt adds. Its objects are never destroyed,
// since background threads may still use them while the process ends.

#include "desktop/Modules.h"
#include "desktop/qt/app/LaunchEvent.h"
#include "desktop/qt/app/QtApplication.h"
#include "desktop/qt/app/QtMenus.h"
#include "desktop/qt/app/QtQueues.h"
#include "desktop/qt/app/QtWindows.h"
#include "platform/Platform.h"

namespace wrenvale::platform {

namespace {

const Platform& makePlatform() {
  const SystemParts& system = builtInSystemParts();
  auto& queues = *new QtQueues(cancelAllRequests);
  callWhenLaunched([&queues] { queues.start(); });
  return *new Platform{system,
                       queues.mainQueue(),
                       queues.globalQueue(),
                       queues.serialQueue(),
                       *new QtApplication(system.userDefaults),
                       *new QtWindows(modulePath(kWebViewModuleFile)),
                       *new QtMenus};
}

} // namespace

const Platform& builtInPlatform() {
  static const Platform& platform = makePlatform();
  return platform;
}

} // namespace wrenvale::platform
