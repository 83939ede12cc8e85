#include "core/UserAgent.h"

#include <wrenvale/HTMLAdditions.h>

#include "base/Value.h"
#include "platform/Kernel.h"

namespace wrenvale {

namespace {

// The application framework of the 10.10 system; earlier ones keep their own user agent.
constexpr double kOldestSystem = 1343.0;

} // namespace

std::string applicationNameForUserAgent(const HostIdentity& host) {
  return urlEncoded(std::string_view(host.appName)) + "/" + std::to_string(host.bundleVersion) +
         " " + formatted(urlEncoded(host.appstoreID));
}

std::optional<std::string> userAgentFor(const HostIdentity& host,
                                        const std::optional<std::string>& machineModel,
                                        const platform::Kernel& kernel) {
  if (kernel.appKitVersionNumber() < kOldestSystem) return std::nullopt;
  const auto release = kernel.sysctlbyname("kern.osrelease");
  if (!release) return std::nullopt;
  // The architecture is part of the format and not taken from the machine.
  return applicationNameForUserAgent(host) + " Darwin/" + *release + " (x86_64) (" +
         formatted(urlEncoded(machineModel)) + ")";
}

} // namespace wrenvale
