#include "tests/acceptance/HostProcess.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "desktop/linux/plist/PropertyList.h"

extern char** environ;

namespace wrenvale::tests {

namespace {

namespace fs = std::filesystem;

std::vector<char*> pointers(std::vector<std::string>& texts) {
  std::vector<char*> result;
  for (auto& text : texts)
    result.push_back(text.data());
  result.push_back(nullptr);
  return result;
}

std::vector<std::string> environmentOf(const fs::path& home,
                                       const std::map<std::string, std::string>& changes) {
  std::map<std::string, std::string> variables;
  for (char** entry = environ; *entry; ++entry) {
    const std::string text = *entry;
    variables[text.substr(0, text.find('='))] = text.substr(text.find('=') + 1);
  }
  variables["HOME"] = home;
  variables["XDG_CONFIG_HOME"] = home / "config";
  variables["XDG_DATA_HOME"] = home / "data";
  variables["QT_QPA_PLATFORM"] = "offscreen";
  variables["LC_ALL"] = "en_US.UTF-8";
  variables["LANGUAGE"] = "";
  // The web engine does not start for root otherwise.
  if (geteuid() == 0) variables["QTWEBENGINE_DISABLE_SANDBOX"] = "1";
  for (const auto& [name, value] : changes)
    variables[name] = value;
  std::vector<std::string> result;
  for (const auto& [name, value] : variables)
    result.push_back(name + "=" + value);
  return result;
}

} // namespace

Run Home::run(const std::string& program, std::vector<std::string> arguments,
              const std::map<std::string, std::string>& environment) const {
  const auto out = folder() / "output";
  const auto errors = folder() / "errors";
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  constexpr int flags = O_WRONLY | O_CREAT | O_TRUNC;
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, out.c_str(), flags, 0600);
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, errors.c_str(), flags, 0600);
  arguments.insert(arguments.begin(), program);
  auto variables = environmentOf(folder(), environment);

  Run run;
  const auto start = std::chrono::steady_clock::now();
  pid_t process = -1;
  int state = 0;
  if (posix_spawn(&process, program.c_str(), &actions, nullptr, pointers(arguments).data(),
                  pointers(variables).data()) == 0 &&
      waitpid(process, &state, 0) == process)
    run.status = WIFEXITED(state) ? WEXITSTATUS(state) : 1000 + WTERMSIG(state);
  run.time = std::chrono::duration_cast<std::chrono::milliseconds>(
      std::chrono::steady_clock::now() - start);
  posix_spawn_file_actions_destroy(&actions);
  run.output = platform::contentsOf(out);
  run.errors = platform::contentsOf(errors);
  return run;
}

fs::path Home::settings(const std::string& identifier) const {
  return folder() / "config" / identifier / "defaults.plist";
}

Value Home::defaults(const std::string& identifier) const {
  return platform::valueFromPropertyList(platform::contentsOf(settings(identifier)))
      .value_or(Value());
}

} // namespace wrenvale::tests
