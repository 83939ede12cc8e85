// The platform of this library: the system parts and what Qt adds. Its objects are never destroyed,
// since background threads may still use them while the process ends.

#include "platform/Modules.h"
#include "platform/Platform.h"
#include "platform/WebViewModule.h"
#include "platform/qt/LaunchEvent.h"
#include "platform/qt/QtAlerts.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/QtDesktop.h"
#include "platform/qt/QtMenus.h"
#include "platform/qt/QtQueues.h"
#include "platform/qt/QtRateWindows.h"
#include "platform/qt/QtRecommenderWindows.h"

namespace wrenvale::platform {

namespace {

const Platform& makePlatform() {
  const SystemParts& system = builtInSystemParts();
  auto& queues = *new QtQueues(system.urlLoading);
  callWhenLaunched([&queues] { queues.start(); });
  return *new Platform{system,
                       *new QtLocalization,
                       *new QtApplication(system.userDefaults),
                       *new QtWorkspace,
                       queues,
                       *new QtRateWindows,
                       *new QtAlerts,
                       *new QtRecommenderWindows(modulePath(kWebViewModuleFile)),
                       *new QtMenus};
}

} // namespace

const Platform& builtInPlatform() {
  static const Platform& platform = makePlatform();
  return platform;
}

} // namespace wrenvale::platform
