#include "desktop/NetModule.h"

#include <wrenvale/Export.h>

#include "desktop/net/crypto/OpenSSLEncryption.h"
#include "desktop/net/http/CurlURLLoading.h"
#include "desktop/net/json/JSONReader.h"

namespace wrenvale::platform {

namespace {

struct Parts {
  CurlURLLoading urlLoading;
  OpenSSLEncryption encryption;
  JSONReader json;
  NetModule module{.urlLoading = urlLoading, .encryption = encryption, .json = json};
};

} // namespace

} // namespace wrenvale::platform

extern "C" WRENVALE_EXPORT const wrenvale::platform::NetModule* wrenvale_net_module();

extern "C" const wrenvale::platform::NetModule* wrenvale_net_module() {
  static const auto& parts = *new wrenvale::platform::Parts;
  return &parts.module;
}
