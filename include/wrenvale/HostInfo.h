// How a host that is not built with CMake says who it is; wrenvale_host() does it for those that
// are. One source file of the executable has the bytes of Info.plist, a property list:
//
//     #include <wrenvale/HostInfo.h>
//
//     static const unsigned char infoPlist[] = {
//     #include "Info.plist.inc"
//     };
//     static const unsigned long infoPlistSize = sizeof infoPlist;
//     WRENVALE_HOST_INFO(infoPlist, infoPlistSize)

#ifndef WRENVALE_HOSTINFO_H
#define WRENVALE_HOSTINFO_H

#include <wrenvale/Export.h>

extern "C" {

/// The layout is the same for every host ever built.
struct WrenvaleHostInfo {
  const unsigned char* infoPlist;
  const unsigned long* infoPlistSize;
  void (*link)();
};

/// Does nothing; a host that refers to it is linked to the library even when the linker drops
/// libraries that nothing needs.
WRENVALE_EXPORT void wrenvale_host_link();

} // extern "C"

/// To be written once in an executable, at namespace scope. `bytes` is an array of constant
/// unsigned char, `size` a constant unsigned long; both constants of the program, since they are
/// read before any constructor runs.
#define WRENVALE_HOST_INFO(bytes, size)                                                            \
  extern "C" {                                                                                     \
  WRENVALE_EXPORT extern const WrenvaleHostInfo wrenvale_host_info;                                \
  const WrenvaleHostInfo wrenvale_host_info = {bytes, &size, &wrenvale_host_link};                 \
  }

#endif
