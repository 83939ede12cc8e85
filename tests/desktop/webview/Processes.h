// The engine's processes, as the system sees them.

#ifndef WRENVALE_TESTS_DESKTOP_WEBVIEW_PROCESSES_H
#define WRENVALE_TESTS_DESKTOP_WEBVIEW_PROCESSES_H

#include <sys/types.h>

#include <vector>

namespace wrenvale::platform {

/// Those that run pages: the engine starts them through a process of its own.
std::vector<pid_t> renderers();

} // namespace wrenvale::platform

#endif
