// How the framework's own requests identify the host and the machine.

#ifndef WRENVALE_CORE_USERAGENT_H
#define WRENVALE_CORE_USERAGENT_H

#include <cstdint>
#include <optional>
#include <string>

namespace wrenvale {

namespace platform {
class System;
}

struct HostIdentity {
  std::string appName;
  std::int64_t bundleVersion = 0;
  std::optional<std::string> appstoreID;
};

/// "<name>/<build> <store identifier>", name and identifier percent-encoded: what the welcome
/// window's web view adds to its own user agent, and how the framework's downloads begin theirs.
std::string applicationNameForUserAgent(const HostIdentity& host);

/// The user agent of the framework's own downloads. Nothing on a system that does not tell its
/// kernel's release.
std::optional<std::string> userAgentFor(const HostIdentity& host,
                                        const std::optional<std::string>& machineModel,
                                        const platform::System& system);

} // namespace wrenvale

#endif
