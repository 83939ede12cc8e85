// A host's window. It is Qt's QWidget, so that a host passes its own windows as they are.

#ifndef WRENVALE_HOSTWINDOW_H
#define WRENVALE_HOSTWINDOW_H

class QWidget;

namespace wrenvale {

using HostWindow = ::QWidget;

} // namespace wrenvale

using wrenvale::HostWindow;

#endif
