#include "benchmarks/welcome/Program.h"

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <set>
#include <thread>

#include "benchmarks/welcome/Moment.h"

namespace wrenvale::benchmark {

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

std::set<std::string> filesIn(const fs::path& folder) {
  std::set<std::string> names;
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(folder, error))
    names.insert(entry.path());
  return names;
}

// What ends after its parent comes to this process, which has asked for that. It gets two seconds.
bool orphansLeft() {
  for (int i = 0; i < 40; ++i) {
    while (::waitpid(-1, nullptr, WNOHANG) > 0) {
    }
    if (errno == ECHILD) return false;
    std::this_thread::sleep_for(50ms);
  }
  return true;
}

} // namespace

Ended run(const std::string& program, const std::string& arguments) {
  ::prctl(PR_SET_CHILD_SUBREAPER, 1);
  std::string folder = fs::temp_directory_path() / "wrenvale-welcome-XXXXXX";
  if (!mkdtemp(folder.data())) return {};
  const auto shared = filesIn("/dev/shm");
  fs::create_directory(folder + "/tmp");
  fs::create_directory(folder + "/run");
  fs::permissions(folder + "/run", fs::perms::owner_all);
  const auto command = "TMPDIR=" + folder + "/tmp XDG_RUNTIME_DIR=" + folder +
                       "/run HOME=" + folder + " XDG_CONFIG_HOME=" + folder +
                       "/config LC_ALL=en_US.UTF-8 LANGUAGE= exec " + program + " " +
                       std::to_string(now()) + " " + arguments + " 2>/dev/null";
  Ended ended;
  std::FILE* pipe = popen(command.c_str(), "r");
  for (int c; pipe && (c = std::fgetc(pipe)) != EOF;)
    ended.output += static_cast<char>(c);
  ended.well = pipe && pclose(pipe) == 0;
  ended.leftProcesses = orphansLeft();
  auto suspects = filesIn("/dev/shm");
  std::erase_if(suspects, [&](const auto& name) { return shared.contains(name); });
  for (const auto& name : filesIn(folder + "/tmp"))
    ended.files.push_back(name);
  std::this_thread::sleep_for(200ms); // other programs have files there for a moment
  for (const auto& name : suspects)
    if (fs::exists(name)) ended.files.push_back(name);
  fs::remove_all(folder);
  return ended;
}

} // namespace wrenvale::benchmark
