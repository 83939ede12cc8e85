// Loading the libraries that the framework does without until something needs them.

#ifndef WRENVALE_DESKTOP_MODULES_H
#define WRENVALE_DESKTOP_MODULES_H

#include <string>
#include <string_view>

namespace wrenvale::platform {

/// Where a module belongs: `file`, beside the library (or program) that holds this code, as an
/// absolute path. Empty when the system does not tell. Call it early: the path may depend on the
/// working directory at load time.
std::string modulePath(std::string_view file);

/// Loads the module, never to be unloaded, and answers its function of that name. Null when there
/// is no such module, it cannot be loaded, or it has no such function. An empty path is a missing
/// module. Any thread.
void* moduleEntry(const std::string& path, const char* function);

} // namespace wrenvale::platform

#endif
