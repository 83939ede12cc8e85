#include "desktop/linux/system/NetModuleLoader.h"

#include <chrono>
#include <future>

#include <dlfcn.h>
#include <gmock/gmock.h>

#include "TemporaryFolder.h"
#include "tests/desktop/net/LoopbackServer.h"

namespace wrenvale::platform {
namespace {

using namespace std::string_literals;

TEST(NetModuleLoader, WithoutAModuleEverythingFailsQuietly) {
  const TemporaryFolder folder;
  folder.write("/garbage.so", "\x7f");
  // The last is a library that is none of ours: no entry.
  for (const auto& path : {folder.path("/missing.so"), folder.path("/garbage.so"), "libc.so.6"s}) {
    NetModuleLoader net(path);
    EXPECT_EQ(net.sendSynchronousRequest({.url = "http://127.0.0.1/x"}), std::nullopt) << path;
    EXPECT_FALSE(net.importPublicKey("key").encrypt) << path;
    EXPECT_FALSE(net.JSONObjectWithData("{}")) << path;
    net.cancelAllRequests();
  }
}

TEST(NetModuleLoader, LoadsForACallAndHandsItOnButNotOnceCancelled) {
  const TemporaryFolder folder;
  const auto path = folder.path("/module.so"); // which no other test has loaded
  std::filesystem::copy_file(WRENVALE_NET_MODULE, path);
  const auto isLoaded = [&path] { return ::dlopen(path.c_str(), RTLD_LAZY | RTLD_NOLOAD); };
  std::promise<void> arrived;
  const LoopbackServer server([&](LoopbackServer::Connection& client) {
    arrived.set_value();
    client.hang();
  });
  const URLRequest request{.url = server.url(), .timeoutInterval = std::chrono::seconds(20)};

  NetModuleLoader cancelled(path);
  cancelled.cancelAllRequests();
  EXPECT_EQ(cancelled.sendSynchronousRequest(request), std::nullopt);
  EXPECT_FALSE(isLoaded());

  NetModuleLoader net(path);
  EXPECT_EQ(net.JSONObjectWithData("[1]"), Value(Value::Array{1}));
  EXPECT_TRUE(isLoaded());
  EXPECT_NE(net.importPublicKey("key").status, 0);
  auto body = std::async([&] { return net.sendSynchronousRequest(request); });
  arrived.get_future().wait();
  net.cancelAllRequests();
  EXPECT_EQ(body.wait_for(std::chrono::seconds(5)), std::future_status::ready);
  EXPECT_EQ(net.sendSynchronousRequest(request), std::nullopt);
}

} // namespace
} // namespace wrenvale::platform
