#include "desktop/linux/system/NetModuleLoader.h"

#include <dlfcn.h>
#include <gmock/gmock.h>

#include "TemporaryFolder.h"
#include "desktop/Modules.h"

namespace wrenvale::platform {
namespace {

const URLRequest kRequest{.url = "http://127.0.0.1/x"};

bool isLoaded(const std::string& path) {
  void* library = ::dlopen(path.c_str(), RTLD_LAZY | RTLD_NOLOAD);
  if (library) ::dlclose(library);
  return library != nullptr;
}

// A copy of the stand-in module that no other test has loaded.
std::string freshModule(const TemporaryFolder& folder) {
  const auto path = folder.path("/module.so");
  std::filesystem::copy_file(WRENVALE_STAND_IN_NET_MODULE, path);
  return path;
}

TEST(NetModuleLoader, WithoutAModuleEverythingFailsQuietly) {
  const TemporaryFolder folder;
  folder.write("/garbage.so", "\x7f"
                              "ELF and then nothing");
  // A library that is none of ours: no entry.
  const std::string rows[] = {"", folder.path("/missing.so"), folder.path("/garbage.so"),
                              folder.path(), "libc.so.6"};
  for (const auto& path : rows) {
    NetModuleLoader net(path);
    EXPECT_EQ(net.sendSynchronousRequest(kRequest), std::nullopt) << path;
    const auto imported = net.importPublicKey("key");
    EXPECT_EQ(imported.status, 0) << path;
    EXPECT_FALSE(imported.encrypt) << path;
    EXPECT_FALSE(net.JSONObjectWithData("{}")) << path;
    net.cancelAllRequests();
  }
}

TEST(NetModuleLoader, FirstCallLoadsAndEveryCallIsHandedOn) {
  const TemporaryFolder folder;
  const auto path = freshModule(folder);
  NetModuleLoader net(path);
  EXPECT_FALSE(isLoaded(path));
  EXPECT_EQ(net.sendSynchronousRequest(kRequest), kRequest.url);
  EXPECT_TRUE(isLoaded(path));
  EXPECT_EQ(net.importPublicKey("key").status, 5);
  EXPECT_EQ(net.JSONObjectWithData("text"), Value("text"));

  net.cancelAllRequests();
  EXPECT_EQ(net.sendSynchronousRequest(kRequest), std::nullopt);
  NetModuleLoader sameModule(path);
  EXPECT_EQ(sameModule.sendSynchronousRequest(kRequest), "cancelled") << "the module was told";
}

TEST(NetModuleLoader, CancellingFirstLoadsNothing) {
  const TemporaryFolder folder;
  const auto path = freshModule(folder);
  NetModuleLoader net(path);
  net.cancelAllRequests();
  EXPECT_EQ(net.sendSynchronousRequest(kRequest), std::nullopt);
  EXPECT_FALSE(isLoaded(path));
}

TEST(NetModuleLoader, ModuleBelongsBesideThisCode) {
  const std::filesystem::path path = modulePath(kNetModuleFile);
  const auto program = std::filesystem::read_symlink("/proc/self/exe");
  EXPECT_TRUE(path.is_absolute());
  EXPECT_TRUE(std::filesystem::equivalent(path.parent_path().parent_path(), program.parent_path()))
      << path;
  EXPECT_EQ(path.filename(), "libwrenvale-net.so");
}

} // namespace
} // namespace wrenvale::platform
