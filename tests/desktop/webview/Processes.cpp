#include "Processes.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>

namespace wrenvale::platform {

namespace {

// Of a process that has not ended; 0 of one that has.
pid_t parentOf(const std::filesystem::path& process) {
  std::ifstream file(process / "stat");
  std::string line;
  std::getline(file, line);
  std::istringstream rest(line.substr(line.rfind(')') + 1));
  char state = 'Z';
  pid_t parent = 0;
  rest >> state >> parent;
  return state == 'Z' ? 0 : parent;
}

std::map<pid_t, pid_t> parents() {
  std::map<pid_t, pid_t> result;
  for (const auto& entry : std::filesystem::directory_iterator("/proc"))
    if (const auto process = std::atoi(entry.path().filename().c_str()))
      result[process] = parentOf(entry.path());
  return result;
}

} // namespace

std::vector<pid_t> renderers() {
  const auto all = parents();
  std::vector<pid_t> result;
  for (const auto& [process, parent] : all) {
    const auto grandparent = all.find(parent);
    if (grandparent != all.end() && grandparent->second == getpid()) result.push_back(process);
  }
  return result;
}

} // namespace wrenvale::platform
