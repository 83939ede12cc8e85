// Files of the framework's own that are no longer needed.

#ifndef WRENVALE_PLATFORM_FILES_H
#define WRENVALE_PLATFORM_FILES_H

#include <string_view>

namespace wrenvale::platform {

/// Any thread.
class FileManager {
public:
  virtual ~FileManager() = default;

  /// Removes the file at this path; false when there is none or it cannot be removed.
  virtual bool removeItemAtPath(std::string_view path) = 0;
};

} // namespace wrenvale::platform

#endif
