#include "tools/wrenvale/serve/ListenAddress.h"

#include <charconv>

namespace wrenvale::kit {

namespace {

constexpr std::string_view kScheme = "http://";
constexpr int kHTTPPort = 80;
constexpr int kHighestPort = 65535;

// Whether all of `text` is four numbers of a byte each, the first 127.
bool isLoopbackNumber(std::string_view text) {
  const char* at = text.data();
  const char* const end = at + text.size();
  for (int i = 0; i < 4; ++i) {
    if (i > 0 && (at == end || *at++ != '.')) return false;
    unsigned char number = 0;
    const auto [rest, error] = std::from_chars(at, end, number);
    if (error != std::errc() || (i == 0 && number != 127)) return false;
    at = rest;
  }
  return at == end;
}

// The host as one listens on it, from the host as an address spells it; "" for a far one.
std::string loopbackHost(std::string_view host) {
  if (host == "localhost") return "127.0.0.1";
  if (host == "[::1]") return "::1";
  return isLoopbackNumber(host) ? std::string(host) : std::string();
}

} // namespace

std::optional<int> portFromText(std::string_view text) {
  int port = -1;
  const auto [rest, error] = std::from_chars(text.data(), text.data() + text.size(), port);
  if (error != std::errc() || rest != text.data() + text.size()) return std::nullopt;
  if (port < 0 || port > kHighestPort) return std::nullopt;
  return port;
}

std::optional<ListenAddress> loopbackAddress(std::string_view vendorBase) {
  if (!vendorBase.starts_with(kScheme)) return std::nullopt;
  vendorBase.remove_prefix(kScheme.size());
  const auto colon = vendorBase.find(':', vendorBase.starts_with('[') ? vendorBase.find(']') : 0);
  const std::string host = loopbackHost(vendorBase.substr(0, colon));
  const auto port = colon == std::string_view::npos ? std::optional(kHTTPPort)
                                                    : portFromText(vendorBase.substr(colon + 1));
  if (host.empty() || !port || *port == 0) return std::nullopt;
  return ListenAddress{.host = host, .port = *port};
}

std::string baseOf(const ListenAddress& address) {
  const bool bracketed = address.host.find(':') != std::string::npos;
  const auto host = bracketed ? "[" + address.host + "]" : address.host;
  return std::string(kScheme) + host + ":" + std::to_string(address.port);
}

} // namespace wrenvale::kit
