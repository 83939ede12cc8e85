// The one instance of a process, and its creation when the library is loaded. Part of the library
// only, not of the logic: this is the one place where the built-in platform comes in.

#include <cstdio>

#include <wrenvale/HostInfo.h>
#include <wrenvale/KVXWrenvale.h>
#include <wrenvale/KVXWrenvaleController.h>
#include <wrenvale/UserDefaults.h>

#include "base/Guard.h"
#include "core/BuildConfiguration.h"
#include "core/Service.h"
#include "desktop/qt/app/LaunchEvent.h"
#include "desktop/qt/app/Logging.h"
#include "platform/Platform.h"

namespace wrenvale {

namespace {

// Never destroyed, like all that is made here: background work may still hold it while the process
// ends.
Service& service() {
  static auto& service = *new Service(platform::builtInPlatform(), builtInConfiguration());
  return service;
}

} // namespace

KVXWrenvale& KVXWrenvale::sharedInstance() {
  static auto& instance = *new KVXWrenvale(service());
  return instance;
}

UserDefaults& UserDefaults::standardUserDefaults() {
  static auto& defaults = *new UserDefaults(platform::builtInPlatform().userDefaults);
  return defaults;
}

KVXWrenvaleController::KVXWrenvaleController()
    : KVXWrenvaleController(service()) {}

namespace {

void load() {
  platform::listenToLog();
#ifndef NDEBUG
  if (!service().bundleID())
    std::fputs("Wrenvale: the host has no \"CFBundleIdentifier\", so nothing is kept and nobody is "
               "asked. Name an Info dictionary with wrenvale_host().\n",
               stderr);
#endif
  platform::builtInPlatform(); // its queues open before the service launches
  platform::callWhenLaunched([] { service().launchHandler(); });
}

// Runs before any constructor of the host, since the host depends on this library.
[[maybe_unused]] const bool kLoaded = guarded([] {
  load();
  return true;
});

} // namespace

} // namespace wrenvale

// Referred to by what wrenvale_host() adds to a host, so that the linker keeps the library.
void wrenvale_host_link() {}
