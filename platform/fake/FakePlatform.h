// A whole platform in memory. A test sets what the world says, drives a service over `platform`,
// and reads what came of it; to make one operation fail, it derives from that one fake and hands
// its own Platform to the service.

#ifndef WRENVALE_PLATFORM_FAKE_FAKEPLATFORM_H
#define WRENVALE_PLATFORM_FAKE_FAKEPLATFORM_H

#include "platform/Platform.h"
#include "platform/fake/FakeApplication.h"
#include "platform/fake/FakeMenus.h"
#include "platform/fake/FakeNet.h"
#include "platform/fake/FakeQueues.h"
#include "platform/fake/FakeSystem.h"
#include "platform/fake/FakeUserDefaults.h"
#include "platform/fake/FakeWindows.h"

namespace wrenvale::platform {

struct FakePlatform {
  Value::Dictionary info;
  FakeUserDefaults userDefaults;
  FakeSystem system;
  FakeLocale locale;
  FakeInstalledApplications installedApplications;
  FakeURLLoading urlLoading;
  FakeEncryption encryption;
  FakeJSON json;
  FakeQueues queues;
  FakeApplication application{system};
  FakeWindows windows;
  FakeMenus menus;

  const Platform platform{
      {info, userDefaults, system, locale, installedApplications, urlLoading, encryption, json},
      queues.main,
      queues.global,
      queues.serial,
      application,
      windows,
      menus};
};

} // namespace wrenvale::platform

#endif
