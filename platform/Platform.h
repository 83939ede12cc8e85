// Everything that the framework needs from a desktop, in one place.

#ifndef WRENVALE_PLATFORM_PLATFORM_H
#define WRENVALE_PLATFORM_PLATFORM_H

#include "platform/Alerts.h"
#include "platform/Application.h"
#include "platform/Clock.h"
#include "platform/Encryption.h"
#include "platform/Files.h"
#include "platform/JSONSerialization.h"
#include "platform/Kernel.h"
#include "platform/Locale.h"
#include "platform/MainBundle.h"
#include "platform/Menus.h"
#include "platform/Queue.h"
#include "platform/Random.h"
#include "platform/RateWindow.h"
#include "platform/RecommenderWindow.h"
#include "platform/URLLoading.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"

namespace wrenvale::platform {

/// What needs no toolkit. The parts live as long as whoever made them says; the built-in ones are
/// never destroyed.
struct SystemParts {
  MainBundle& mainBundle;
  UserDefaults& userDefaults;
  Locale& locale;
  Kernel& kernel;
  URLLoading& urlLoading;
  Encryption& encryption;
  JSONSerialization& json;
  InstalledApplications& installedApplications;
  FileManager& fileManager;
  Clock& clock;
  Random& random;
};

/// The system parts and what a toolkit adds.
struct Platform : SystemParts {
  Localization& localization;
  Application& application;
  Workspace& workspace;
  Queues& queues;
  RateWindows& rateWindows;
  Alerts& alerts;
  RecommenderWindows& recommenderWindows;
  Menus& menus;
};

/// The parts that this system offers without a toolkit; made on the first call.
const SystemParts& builtInSystemParts();

/// The platform that this library was built for; made on the first call, before `main` as a rule.
/// It starts no thread, writes no file and creates no toolkit object until something needs one.
const Platform& builtInPlatform();

} // namespace wrenvale::platform

#endif
