// Files, removed by their path.

#ifndef WRENVALE_DESKTOP_LINUX_SYSTEM_LINUXFILEMANAGER_H
#define WRENVALE_DESKTOP_LINUX_SYSTEM_LINUXFILEMANAGER_H

#include "platform/Files.h"

namespace wrenvale::platform {

/// Removes plain files and links, never a folder.
class LinuxFileManager : public FileManager {
public:
  bool removeItemAtPath(std::string_view path) override;
};

} // namespace wrenvale::platform

#endif
