// The host's half without wrenvale_host(), for builds by pkg-config.

#include <wrenvale/HostInfo.h>

static const unsigned char infoPlist[] = {
#include "Info.plist.inc"
};
static const unsigned long infoPlistSize = sizeof infoPlist;
WRENVALE_HOST_INFO(infoPlist, infoPlistSize)
