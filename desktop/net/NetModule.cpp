#include "desktop/Modules.h"

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
};

// Never destroyed, since background threads may use it until the process is gone.
Parts& parts() {
  static auto& parts = *new Parts;
  return parts;
}

} // namespace

} // namespace wrenvale::platform

extern "C" WRENVALE_EXPORT const wrenvale::platform::NetModule*
wrenvale_net_module(wrenvale::log::Sink sink);

extern "C" const wrenvale::platform::NetModule* wrenvale_net_module(wrenvale::log::Sink sink) {
  using wrenvale::platform::parts;
  wrenvale::log::sink = sink;
  static const wrenvale::platform::NetModule module{
      .urlLoading = parts().urlLoading,
      .encryption = parts().encryption,
      .json = parts().json,
      .cancelAllRequests = [] { parts().urlLoading.cancelAllRequests(); }};
  return &module;
}
