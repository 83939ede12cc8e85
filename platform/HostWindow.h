// The host's windows, as the logic passes them on: opaque.

#ifndef WRENVALE_PLATFORM_HOSTWINDOW_H
#define WRENVALE_PLATFORM_HOSTWINDOW_H

class QWidget;

namespace wrenvale::platform {

using HostWindow = ::QWidget;

} // namespace wrenvale::platform

#endif
