// What the net module offers. The module is a library of its own, loaded when a background thread
// first needs it, so that a host that never does so pays for neither network nor cryptography.

#ifndef WRENVALE_DESKTOP_NETMODULE_H
#define WRENVALE_DESKTOP_NETMODULE_H

namespace wrenvale::platform {

class Encryption;
class JSONSerialization;
class URLLoading;

/// The parts live until the process ends; the module is never unloaded.
struct NetModule {
  URLLoading& urlLoading;
  Encryption& encryption;
  JSONSerialization& json;
  /// See below.
  void (*cancelAllRequests)();
};

/// The module's one entry, named kNetModuleEntry; never null. Any thread but the main one.
using NetModuleEntry = const NetModule* (*)();
inline constexpr const char* kNetModuleEntry = "wrenvale_net_module";
/// Where the module is, relative to the folder of the library.
inline constexpr const char* kNetModuleFile = "wrenvale/libwrenvale-net.so";

/// The process is ending: downloads under way return nothing as soon as they can, later ones at
/// once. Loads nothing. Any thread.
void cancelAllRequests();

} // namespace wrenvale::platform

#endif
