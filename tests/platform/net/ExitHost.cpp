// A host that ends while its background threads are inside the net module.
//
//   wrenvale_net_exit_host <module> <way out> <milliseconds until then> <address>
//
// The threads keep downloading the address, or encrypting when it is a key. The way out is "return"
// (from main, the application object destroyed first), "exit" (from inside the event loop), "leak"
// (from main, the application object left behind) or "bare" (there never was an application
// object). What it prints is the time at which the end began, in nanoseconds of the monotonic
// clock.

#include <dlfcn.h>
#include <netdb.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <thread>

#include <QCoreApplication>
#include <QTimer>

#include "platform/Encryption.h"
#include "platform/NetModule.h"
#include "platform/URLLoading.h"

using namespace wrenvale::platform;

// Stands in for the system's: a name server that does not answer.
extern "C" __attribute__((visibility("default"))) int getaddrinfo(const char*, const char*,
                                                                  const addrinfo*, addrinfo**) {
  sleep(10);
  return EAI_AGAIN;
}

namespace {

constexpr int kThreads = 3;

void workForEver(const char* modulePath, std::string_view address) {
  void* module = dlopen(modulePath, RTLD_NOW | RTLD_LOCAL);
  const auto entry =
      module ? reinterpret_cast<NetModuleEntry>(dlsym(module, kNetModuleEntry)) : nullptr;
  if (!entry) {
    std::fprintf(stderr, "no module: %s\n", dlerror());
    std::abort();
  }
  const auto& parts = *entry();
  while (true) {
    if (address.starts_with("http")) {
      parts.urlLoading.sendSynchronousRequest({.url = std::string(address)});
    } else if (const auto imported = parts.encryption.importPublicKey(address); imported.key) {
      imported.key->encrypt("email=");
    }
  }
}

void announceEnd() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  std::printf("%lld\n", static_cast<long long>(std::chrono::nanoseconds(now).count()));
  std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv) {
  if (argc != 5) return 2;
  const std::string_view wayOut = argv[2];
  const std::chrono::milliseconds delay(std::atoll(argv[3]));
  auto* application = wayOut == "bare" ? nullptr : new QCoreApplication(argc, argv);
  for (int i = 0; i < kThreads; ++i)
    std::thread(workForEver, argv[1], argv[4]).detach();
  if (application) {
    QTimer::singleShot(delay, [&] {
      if (wayOut != "exit") return QCoreApplication::quit();
      announceEnd();
      std::exit(0);
    });
    QCoreApplication::exec();
  } else {
    std::this_thread::sleep_for(delay);
  }
  announceEnd();
  if (wayOut == "return") delete application;
  return 0;
}
