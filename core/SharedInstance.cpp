// The one instance of a process, and its creation when the library is loaded. Part of the library
// only, not of the logic: this is the one place where the built-in platform comes in.

#include <cstdio>

#include <wrenvale/HostInfo.h>
#include <wrenvale/KVXWrenvale.h>
#include <wrenvale/KVXWrenvaleController.h>
#include <wrenvale/UserDefaults.h>

#include "core/BuildConfiguration.h"
#include "core/Guard.h"
#include "platform/Platform.h"

namespace wrenvale {

// Never destroyed: background work may still hold it while the process ends.
KVXWrenvale& KVXWrenvale::sharedInstance() {
  static auto& instance = *new KVXWrenvale(platform::builtInPlatform(), builtInConfiguration());
  return instance;
}

UserDefaults& UserDefaults::standardUserDefaults() {
  static auto& defaults = *new UserDefaults(platform::builtInPlatform().userDefaults);
  return defaults;
}

KVXWrenvaleController::KVXWrenvaleController()
    : KVXWrenvaleController(KVXWrenvale::sharedInstance(), platform::builtInPlatform(),
                            builtInConfiguration().vendorSiteName) {}

void KVXWrenvale::load() {
  auto& instance = sharedInstance();
#ifndef NDEBUG
  if (!instance.bundleID())
    std::fputs("Wrenvale: the host has no \"CFBundleIdentifier\", so nothing is kept and nobody is "
               "asked. Name an "
               "Info dictionary with wrenvale_host().\n",
               stderr);
#endif
  platform::builtInPlatform().application.observeDidFinishLaunching(
      [&instance] { instance.launchHandler(); });
}

namespace {

// Runs before any constructor of the host, since the host depends on this library.
[[maybe_unused]] const bool kLoaded = guarded([] {
  KVXWrenvale::load();
  return true;
});

} // namespace

} // namespace wrenvale

// Referred to by what wrenvale_host() adds to a host, so that the linker keeps the library.
void wrenvale_host_link() {}
