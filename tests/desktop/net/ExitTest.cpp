// The end of a process with the module at work, as real processes go through it.

#include <gtest/gtest.h>

#include <chrono>

#include "tests/acceptance/HostProcess.h"
#include "tests/desktop/linux/TemporaryFolder.h"
#include "tests/desktop/net/LoopbackServer.h"

namespace wrenvale::platform {

namespace {

using namespace std::chrono_literals;

TEST(Exit, IsNeitherHeldUpNorCrashedByWorkUnderWay) {
  const LoopbackServer server([](LoopbackServer::Connection& client) {
    if (client.head().starts_with("get /hang")) return client.hang();
    client.send(answerWith("[]", "404 Not Found"));
  });
  const std::string addresses[] = {server.url("/hang"), server.url("/at-once"),
                                   "http://silent-name-server.invalid/",
                                   contentsOf(WRENVALE_DEVELOPMENT_PUBLIC_KEY)};
  const tests::Home home;
  for (const auto& address : addresses)
    for (const char* delay : {"0", "1", "3", "10", "30"}) {
      const auto ended = home.run(WRENVALE_EXIT_HOST, {WRENVALE_NET_MODULE, delay, address});
      EXPECT_EQ(ended.status, 0) << address << " after " << delay << " ms";
      EXPECT_LT(ended.time, 3s) << address << " after " << delay << " ms: it waits for something";
    }
}

} // namespace

} // namespace wrenvale::platform
