// Where a development server has to listen so that hosts of this build find it.

#ifndef WRENVALE_TOOLS_WRENVALE_SERVE_LISTENADDRESS_H
#define WRENVALE_TOOLS_WRENVALE_SERVE_LISTENADDRESS_H

#include <optional>
#include <string>
#include <string_view>

namespace wrenvale::kit {

struct ListenAddress {
  std::string host; ///< a name or a numeric address, without brackets
  int port;

  bool operator==(const ListenAddress&) const = default;
};

/// The port that `text` names: a decimal number up to 65535; nothing for any other text.
std::optional<int> portFromText(std::string_view text);

/// The place that a vendor base such as "http://127.0.0.1:47210" points to. Nothing unless it is
/// plain HTTP, on the loopback, and without a path: any other server is not for this machine to
/// play.
std::optional<ListenAddress> loopbackAddress(std::string_view vendorBase);

/// What a browser calls the server: "http://127.0.0.1:47210".
std::string baseOf(const ListenAddress& address);

} // namespace wrenvale::kit

#endif
