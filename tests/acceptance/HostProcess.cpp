#include "tests/acceptance/HostProcess.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>

#include "desktop/linux/plist/PropertyList.h"

namespace wrenvale::tests {

namespace {

// As one word of a shell's command.
std::string quoted(std::string text) {
  for (std::size_t at = 0; (at = text.find('\'', at)) != std::string::npos; at += 4)
    text.replace(at, 1, R"('\'')");
  return " '" + text + "'";
}

} // namespace

Run Home::run(const std::string& program, const std::vector<std::string>& arguments,
              const std::map<std::string, std::string>& environment) const {
  std::map<std::string, std::string> variables = environment;
  variables.insert({{"HOME", folder()},
                    {"XDG_CONFIG_HOME", folder() / "config"},
                    {"XDG_DATA_HOME", folder() / "data"},
                    {"QT_QPA_PLATFORM", "offscreen"},
                    {"LC_ALL", "en_US.UTF-8"},
                    {"LANGUAGE", ""}});
  // The web engine does not start for root otherwise.
  if (geteuid() == 0) variables.insert({"QTWEBENGINE_DISABLE_SANDBOX", "1"});
  std::string command = "exec env";
  for (const auto& [name, value] : variables)
    command += quoted(name + "=" + value);
  command += quoted(program);
  for (const auto& argument : arguments)
    command += quoted(argument);
  command += " >" + quoted(folder() / "output") + " 2>" + quoted(folder() / "errors");

  Run run;
  const auto start = std::chrono::steady_clock::now();
  const int state = std::system(command.c_str());
  run.status = WIFEXITED(state) ? WEXITSTATUS(state) : 1000 + WTERMSIG(state);
  run.time = std::chrono::duration_cast<std::chrono::milliseconds>(
      std::chrono::steady_clock::now() - start);
  run.output = platform::contentsOf(folder() / "output");
  run.errors = platform::contentsOf(folder() / "errors");
  return run;
}

Value Home::defaults(const std::string& identifier) const {
  const auto file = folder() / "config" / identifier / "defaults.plist";
  return platform::valueFromPropertyList(platform::contentsOf(file)).value_or(Value());
}

void Home::setDefaults(const std::string& identifier, const Value::Dictionary& settings) const {
  folder_.write("/config/" + identifier + "/defaults.plist",
                *platform::propertyListFromValue(settings));
}

} // namespace wrenvale::tests
