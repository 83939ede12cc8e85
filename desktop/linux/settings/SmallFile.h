// Reading files of which only a little is wanted, whatever stands in their place.

#ifndef WRENVALE_DESKTOP_LINUX_SETTINGS_SMALLFILE_H
#define WRENVALE_DESKTOP_LINUX_SETTINGS_SMALLFILE_H

#include <cstddef>
#include <optional>
#include <string>

namespace wrenvale::platform {

/// The first `limit` bytes of a regular file, or all of a shorter one. Nothing when there is no
/// such file, it may not be read, or a folder, pipe or device stands there: none of them is waited
/// for. Costs one system call when there is none. Any thread.
std::optional<std::string> beginningOfFile(const char* path, std::size_t limit);

} // namespace wrenvale::platform

#endif
