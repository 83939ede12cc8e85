#include "desktop/linux/system/LinuxFileManager.h"

#include <string>

#include <unistd.h>

namespace wrenvale::platform {

bool LinuxFileManager::removeItemAtPath(std::string_view path) {
  return ::unlink(std::string(path).c_str()) == 0;
}

} // namespace wrenvale::platform
