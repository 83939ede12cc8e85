// The pages that stand in for the redirects of a maker's real server.

#ifndef WRENVALE_TOOLS_WRENVALE_SERVE_REDIRECTPAGE_H
#define WRENVALE_TOOLS_WRENVALE_SERVE_REDIRECTPAGE_H

#include <optional>
#include <string>
#include <string_view>

namespace wrenvale::kit {

constexpr std::string_view kRedirectFolder = "/app_redirect/";

/// An HTML page that says where a real server would send the browser on to from `path`, a
/// percent-decoded path below kRedirectFolder. Nothing when Wrenvale opens no such address.
std::optional<std::string> redirectPage(std::string_view path);

} // namespace wrenvale::kit

#endif
