#include "tests/tools/ServeProcess.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <stdexcept>

extern char** environ;

namespace wrenvale::tests {

ServeProcess::ServeProcess(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), {WRENVALE_KIT, "serve"});
  std::vector<char*> pointers;
  for (auto& argument : arguments)
    pointers.push_back(argument.data());
  pointers.push_back(nullptr);

  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
  posix_spawn_file_actions_adddup2(&actions, ends[1], STDERR_FILENO);
  const int error =
      posix_spawn(&process_, WRENVALE_KIT, &actions, nullptr, pointers.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  close(ends[1]);
  output_ = fdopen(ends[0], "r");
  if (error != 0) throw std::runtime_error("cannot run " WRENVALE_KIT);
}

ServeProcess::~ServeProcess() {
  if (process_ > 0) end(SIGKILL);
  std::fclose(output_);
}

std::string ServeProcess::line() {
  std::string text;
  for (int c; (c = std::getc(output_)) != EOF && c != '\n';)
    text += static_cast<char>(c);
  return text;
}

int ServeProcess::port() {
  const std::string first = line();
  return std::atoi(first.substr(first.rfind(':') + 1).c_str());
}

int ServeProcess::end(int signal) {
  kill(process_, signal);
  return status();
}

int ServeProcess::status() {
  int state = 0;
  waitpid(process_, &state, 0);
  process_ = -1;
  return WIFEXITED(state) ? WEXITSTATUS(state) : -1;
}

} // namespace wrenvale::tests
