// Whether the web engine can be started, which is to be known beforehand: where it cannot, it ends
// the process.

#ifndef WRENVALE_DESKTOP_WEBVIEW_ENGINE_H
#define WRENVALE_DESKTOP_WEBVIEW_ENGINE_H

namespace wrenvale::platform {

/// False where the engine's own program or data are missing, where it could not put its processes
/// into a sandbox (as root, or where the system grants no namespaces, unless the user has
/// switched the sandbox off in the environment), and without shared memory. Starts nothing.
bool engineCanStart();

/// Has the engine draw by itself where there is no OpenGL. Before it starts.
void chooseDrawing();

} // namespace wrenvale::platform

#endif
