// Looking up host names without ever holding up the end of the process.

#ifndef WRENVALE_PLATFORM_NET_HOSTLOOKUP_H
#define WRENVALE_PLATFORM_NET_HOSTLOOKUP_H

#include <chrono>
#include <stop_token>
#include <string>
#include <vector>

namespace wrenvale::platform {

/// The addresses of `host` as text, the most promising first; none when it has none, when `stop`
/// was requested or when `deadline` passed first.
///
/// The system's resolver can neither be interrupted nor given a time-out, and a name server that is
/// silent keeps it waiting for many seconds. So the question is asked on a thread of its own, which
/// nobody waits for and which touches nothing but the answer's shared place.
std::vector<std::string> addressesOfHost(const std::string& host, const std::stop_token& stop,
                                         std::chrono::steady_clock::time_point deadline);

} // namespace wrenvale::platform

#endif
