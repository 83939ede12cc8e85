// The engine's orderly end. It goes with the application object, or before exit() destroys statics
// when that object is still there. What uses the engine has to go first, while nobody else may be
// left to see to that.

#ifndef WRENVALE_DESKTOP_WEBVIEW_ENGINEEND_H
#define WRENVALE_DESKTOP_WEBVIEW_ENGINEEND_H

#include <initializer_list>

class QObject;

namespace wrenvale::platform {

/// When the engine ends, destroys the objects that still exist then, in this order.
/// Main thread only.
void destroyBeforeEngine(std::initializer_list<QObject*> objects);

/// Has that come before the end of everything that the engine has set up until now. It sets up
/// parts of itself when they are first needed, and each has an end of its own.
void endBeforeEngine();

/// The engine cannot be started once more, for another application object.
bool hasEngineEnded();

} // namespace wrenvale::platform

#endif
