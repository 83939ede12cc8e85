#include "core/UserAgent.h"

#include <wrenvale/HTMLAdditions.h>

#include "base/Value.h"
#include "platform/System.h"

namespace wrenvale {

std::string applicationNameForUserAgent(const HostIdentity& host) {
  return urlEncoded(std::string_view(host.appName)) + "/" + std::to_string(host.bundleVersion) +
         " " + formatted(urlEncoded(host.appstoreID));
}

std::optional<std::string> userAgentFor(const HostIdentity& host,
                                        const std::optional<std::string>& machineModel,
                                        const platform::System& system) {
  const auto release = system.sysctlbyname("kern.osrelease");
  if (!release) return std::nullopt;
  // The architecture is part of the format and not taken from the machine.
  return applicationNameForUserAgent(host) + " Darwin/" + *release + " (x86_64) (" +
         formatted(urlEncoded(machineModel)) + ")";
}

} // namespace wrenvale
