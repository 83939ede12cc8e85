// A net module that reaches no network, for the tests of what loads the module.

#include "desktop/NetModule.h"
#include "platform/Net.h"

namespace wrenvale::platform {
namespace {

// Answers with the address, and with "cancelled" once cancelled: a real module answers nothing
// then, which could not be told from a module that was not asked.
struct Loading : URLLoading {
  std::optional<std::string> sendSynchronousRequest(const URLRequest& request) override {
    return cancelled ? "cancelled" : request.url;
  }
  bool cancelled = false;
};

struct StatusFive : Encryption {
  ImportedKey importPublicKey(std::string_view) override { return {.status = 5}; }
};

struct Echo : JSONSerialization {
  std::optional<Value> JSONObjectWithData(std::string data) override {
    return Value(std::move(data));
  }
};

} // namespace
} // namespace wrenvale::platform

extern "C" __attribute__((visibility("default"))) const wrenvale::platform::NetModule*
wrenvale_net_module() {
  using namespace wrenvale::platform;
  static Loading loading;
  static StatusFive encryption;
  static Echo json;
  static const NetModule module{.urlLoading = loading,
                                .encryption = encryption,
                                .json = json,
                                .cancelAllRequests = [] { loading.cancelled = true; }};
  return &module;
}
