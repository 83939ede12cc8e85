#include "core/Origin.h"

#include <algorithm>
#include <optional>
#include <string>

namespace wrenvale {

namespace {

// ASCII, as scheme and host are.
std::string lowerCased(std::string_view text) {
  std::string result(text);
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
  std::transform(result.begin(), result.end(), result.begin(), lower);
  return result;
}

std::string_view usualPort(std::string_view scheme) {
  if (scheme == "http") return ":80";
  return scheme == "https" ? ":443" : "";
}

// "scheme://host:port", or "scheme://host" for the usual port. An address with a user name in it
// has none: it is not how a maker's server is written, and a place to hide another host.
std::optional<std::string> originOf(std::string_view address) {
  const auto colon = address.find("://");
  if (colon == std::string_view::npos) return std::nullopt;
  const auto scheme = lowerCased(address.substr(0, colon));
  auto authority = address.substr(colon + 3);
  authority = authority.substr(0, authority.find_first_of("/?#\\"));
  if (usualPort(scheme).empty() || authority.empty() || authority.find('@') != authority.npos)
    return std::nullopt;
  if (authority.ends_with(usualPort(scheme))) authority.remove_suffix(usualPort(scheme).size());
  return scheme + "://" + lowerCased(authority);
}

} // namespace

bool haveSameOrigin(std::string_view one, std::string_view other) {
  const auto origin = originOf(one);
  return origin && origin == originOf(other);
}

} // namespace wrenvale
