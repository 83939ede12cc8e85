// Everything that the framework needs from a desktop, in one place.

#ifndef WRENVALE_PLATFORM_PLATFORM_H
#define WRENVALE_PLATFORM_PLATFORM_H

#include <memory>
#include <string_view>

#include "platform/Application.h"
#include "platform/Menus.h"
#include "platform/Net.h"
#include "platform/Queue.h"
#include "platform/System.h"
#include "platform/UserDefaults.h"
#include "platform/Windows.h"

namespace wrenvale::platform {

/// What needs no toolkit. The parts live as long as whoever made them says; the built-in ones are
/// never destroyed.
struct SystemParts {
  /// The host's description of itself: constant for the life of the process, readable before
  /// `main`, from any thread; empty when the host has none.
  const Value::Dictionary& info;
  UserDefaults& userDefaults;
  System& system;
  Locale& locale;
  InstalledApplications& installedApplications;
  URLLoading& urlLoading;
  Encryption& encryption;
  JSONSerialization& json;
};

/// The system parts and what a toolkit adds.
struct Platform : SystemParts {
  /// Runs tasks on the main thread, one at a time, in order, once the host's event loop runs.
  Queue& mainQueue;
  /// Runs tasks in the background, several at the same time, in no order.
  Queue& globalQueue;
  /// Runs tasks in the background, one at a time, in order.
  Queue& serialQueue;
  Application& application;
  Windows& windows;
  Menus& menus;
};

/// The parts that this system offers without a toolkit; made on the first call.
const SystemParts& builtInSystemParts();

/// The settings of the host with this identifier, whoever asks. They keep nothing when the
/// identifier is no plain name.
std::unique_ptr<UserDefaults> makeUserDefaults(std::string_view bundleIdentifier);

/// The platform that this library was built for; made on the first call, before `main` as a rule.
/// It starts no thread, writes no file and creates no toolkit object until something needs one.
const Platform& builtInPlatform();

} // namespace wrenvale::platform

#endif
