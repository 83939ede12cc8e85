// The moment at which the host has finished launching: the first turn of its event loop.

#ifndef WRENVALE_DESKTOP_QT_APP_LAUNCHEVENT_H
#define WRENVALE_DESKTOP_QT_APP_LAUNCHEVENT_H

#include <functional>

namespace wrenvale::platform {

/// Calls `handler` once, on the main thread, when the first event loop runs there and before it
/// delivers anything. The handler must not run an event loop of its own. Turns of
/// QCoreApplication::processEvents() outside of a loop (a splash screen's, say) do not count. A
/// host that never runs a loop, or never creates an application object, never launches. May be
/// called before `main`; creates no toolkit object.
void callWhenLaunched(std::function<void()> handler);

} // namespace wrenvale::platform

#endif
