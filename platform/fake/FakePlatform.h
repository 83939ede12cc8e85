// A whole platform in memory. A test sets what the world says, drives a service over `platform`,
// and reads what came of it; to make one operation fail, it derives from that one fake and hands
// its own Platform to the service.

#ifndef WRENVALE_PLATFORM_FAKE_FAKEPLATFORM_H
#define WRENVALE_PLATFORM_FAKE_FAKEPLATFORM_H

#include "platform/Platform.h"
#include "platform/fake/FakeAlerts.h"
#include "platform/fake/FakeDesktop.h"
#include "platform/fake/FakeMenus.h"
#include "platform/fake/FakeQueues.h"
#include "platform/fake/FakeRateWindow.h"
#include "platform/fake/FakeRecommenderWindow.h"
#include "platform/fake/FakeSystem.h"
#include "platform/fake/FakeUserDefaults.h"

namespace wrenvale::platform {

struct FakePlatform {
  FakeMainBundle mainBundle;
  FakeUserDefaults userDefaults;
  FakeLocale locale;
  FakeKernel kernel;
  FakeURLLoading urlLoading;
  FakeEncryption encryption;
  FakeJSON json;
  FakeInstalledApplications installedApplications;
  FakeFileManager fileManager;
  FakeClock clock;
  FakeRandom random;
  FakeLocalization localization;
  FakeApplication application;
  FakeWorkspace workspace{clock};
  FakeQueues queues;
  FakeRateWindows rateWindows;
  FakeAlerts alerts;
  FakeRecommenderWindows recommenderWindows;
  FakeMenus menus;

  const Platform platform{{mainBundle, userDefaults, locale, kernel, urlLoading, encryption, json,
                           installedApplications, fileManager, clock, random},
                          localization,
                          application,
                          workspace,
                          queues,
                          rateWindows,
                          alerts,
                          recommenderWindows,
                          menus};
};

} // namespace wrenvale::platform

#endif
