// The end of a process with the module at work, as real processes go through it.

#include <gtest/gtest.h>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include "tests/platform/net/LoopbackServer.h"

extern char** environ;

namespace wrenvale::platform {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

struct Ending {
  int status = -1;                 ///< as waitpid() tells it
  std::chrono::nanoseconds took{}; ///< from when the host wanted to end
};

std::string readAll(int descriptor) {
  std::string text;
  char buffer[256];
  for (ssize_t count = 0; (count = read(descriptor, buffer, sizeof(buffer))) > 0;)
    text.append(buffer, static_cast<std::size_t>(count));
  return text;
}

Ending endingOfHost(std::string wayOut, std::string delay, std::string address) {
  int out[2];
  if (pipe(out) != 0) return {};
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, out[1], STDOUT_FILENO);
  posix_spawn_file_actions_addclose(&actions, out[0]);
  posix_spawn_file_actions_addclose(&actions, out[1]);
  std::string program = WRENVALE_EXIT_HOST;
  std::string module = WRENVALE_NET_MODULE;
  char* arguments[] = {program.data(), module.data(),  wayOut.data(),
                       delay.data(),   address.data(), nullptr};
  pid_t process = 0;
  const int error = posix_spawn(&process, program.c_str(), &actions, nullptr, arguments, environ);
  posix_spawn_file_actions_destroy(&actions);
  close(out[1]);
  Ending ending;
  if (error == 0) {
    const std::chrono::nanoseconds begin(std::atoll(readAll(out[0]).c_str()));
    waitpid(process, &ending.status, 0);
    ending.took = Clock::now().time_since_epoch() - begin;
  }
  close(out[0]);
  return ending;
}

std::string contents(const char* path) {
  std::ostringstream text;
  text << std::ifstream(path).rdbuf();
  return text.str();
}

class Exit : public testing::TestWithParam<const char*> {};

TEST_P(Exit, IsNeitherHeldUpNorCrashedByWorkUnderWay) {
  const LoopbackServer server([](LoopbackServer::Connection& client) {
    if (client.head().starts_with("get /hang")) return client.hang();
    client.send(answerWith("[]", "404 Not Found"));
  });
  const std::string addresses[] = {server.url("/hang"), server.url("/at-once"),
                                   "http://silent-name-server.invalid/",
                                   contents(WRENVALE_DEVELOPMENT_PUBLIC_KEY)};
  for (const auto& address : addresses) {
    for (const char* delay : {"0", "1", "3", "10", "30"}) {
      const auto ending = endingOfHost(GetParam(), delay, address);
      EXPECT_EQ(ending.status, 0) << address << " after " << delay << " ms";
      // The module takes up to 100 ms; the rest is what a busy machine may add.
      EXPECT_LT(ending.took, 1s) << address << " after " << delay << " ms";
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Ways, Exit, testing::Values("return", "exit", "leak", "bare"),
                         [](const auto& info) { return std::string(info.param); });

} // namespace

} // namespace wrenvale::platform
