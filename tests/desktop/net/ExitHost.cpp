// A host that ends while its background threads are inside the net module.
//
//   wrenvale_net_exit_host <module> <milliseconds until then> <address>
//
// The threads keep downloading the address, or encrypting when it is a key.

#include <dlfcn.h>
#include <netdb.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <string_view>
#include <thread>

#include "desktop/Modules.h"
#include "platform/Net.h"

using namespace wrenvale::platform;

// Stands in for the system's: a name server that does not answer.
extern "C" __attribute__((visibility("default"))) int getaddrinfo(const char*, const char*,
                                                                  const addrinfo*, addrinfo**) {
  sleep(10);
  return EAI_AGAIN;
}

namespace {

void workForEver(const char* modulePath, std::string_view address) {
  void* module = dlopen(modulePath, RTLD_NOW | RTLD_LOCAL);
  if (!module) std::abort();
  const auto& parts = *reinterpret_cast<NetModuleEntry>(dlsym(module, kNetModuleEntry))(nullptr);
  while (true) {
    if (address.starts_with("http")) {
      parts.urlLoading.sendSynchronousRequest({.url = std::string(address)});
    } else if (const auto key = parts.encryption.importPublicKey(address); key.encrypt) {
      key.encrypt("email=");
    }
  }
}

} // namespace

int main(int, char** argv) {
  for (int i = 0; i < 3; ++i)
    std::thread(workForEver, argv[1], argv[3]).detach();
  std::this_thread::sleep_for(std::chrono::milliseconds(std::atoll(argv[2])));
  return 0;
}
