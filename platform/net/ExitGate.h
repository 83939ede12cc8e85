// Keeps the end of the process from taking libraries apart under work that still uses them, without
// ever holding it up for long.
//
// A process ends by destroying, in reverse order, what its libraries created; a background thread
// that is inside one of them then reads what is gone. So work in such a library holds a pass of the
// exit gate, and the end of the process closes the gate and waits up to 100 ms for the passes to
// come back. It takes the destruction of the host's application object for the end of the process.

#ifndef WRENVALE_PLATFORM_NET_EXITGATE_H
#define WRENVALE_PLATFORM_NET_EXITGATE_H

#include "platform/net/RequestGate.h"

namespace wrenvale::platform {

/// Lives for ever.
RequestGate& exitGate();

/// Makes the end of the process close the gate before it destroys anything that exists by now. Each
/// call counts only from then on, so whoever goes on calling while the process ends keeps it from
/// ending: hold a pass. Any thread.
void armExitGate();

/// The same for what Qt will ever create. The main thread has to do its part in this: waits for a
/// turn of its event loop. False when there is no application object, when `stop` was requested or
/// when `deadline` passed first. Any thread but the main one, holding a pass.
bool armExitGateForQt(const std::stop_token& stop, std::chrono::steady_clock::time_point deadline);

} // namespace wrenvale::platform

#endif
