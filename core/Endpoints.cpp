#include "core/Endpoints.h"

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <string>

#include "base/Value.h"
#include "core/BuildConfiguration.h"

namespace wrenvale {

namespace {

constexpr std::string_view kReset = "/store/reset_%@.json";
constexpr std::string_view kRecommender = "/store/recommender_%@%@.json";
constexpr std::string_view kIcon = "/store/images/%@";
constexpr std::string_view kNewsletter = "/store/newsletter/index_%@.html";
constexpr std::string_view kSubscribe = "/store/subscribe.php?data=%@";
constexpr std::string_view kMoreApps = "/app_redirect/moreapps_%@";
constexpr std::string_view kGeneralSupport = "/app_redirect/support_%@";
constexpr std::string_view kSupport = "/app_redirect/support_%@/%@";
constexpr std::string_view kTwitter = "/app_redirect/twitter";
constexpr std::string_view kStore = "macappstore://%@/us/app/id%@?mt=12";

// Replaces each "%@" of the template in order, and none in what it has put in.
std::string filled(std::string_view pattern, std::initializer_list<std::string_view> values) {
  std::string result;
  for (const auto value : values) {
    const auto place = pattern.find("%@");
    result.append(pattern.substr(0, place)).append(value);
    pattern.remove_prefix(place + 2);
  }
  return result.append(pattern);
}

} // namespace

Endpoints::Endpoints(const BuildConfiguration& configuration)
    : vendorBase_(configuration.vendorBase)
    , storeHost_(configuration.storeHost)
    , bridgeIsVendors_(configuration.bridgeIsVendors) {}

std::string Endpoints::resetDocument(std::string_view localeSuffix) const {
  return vendorBase_ + filled(kReset, {localeSuffix});
}

std::string Endpoints::recommenderDocument(std::string_view localeSuffix,
                                           std::string_view variant) const {
  return vendorBase_ + filled(kRecommender, {localeSuffix, variant});
}

std::string Endpoints::icon(const std::optional<std::string>& fileName) const {
  return vendorBase_ + filled(kIcon, {formatted(fileName)});
}

std::string Endpoints::newsletterPage(std::string_view country) const {
  return vendorBase_ + filled(kNewsletter, {country});
}

std::string Endpoints::subscription(const std::optional<std::string>& data) const {
  return vendorBase_ + filled(kSubscribe, {formatted(data)});
}

std::string Endpoints::moreApps(std::string_view localeSuffix) const {
  return vendorBase_ + filled(kMoreApps, {localeSuffix});
}

std::string Endpoints::generalSupport(std::string_view localeSuffix) const {
  return vendorBase_ + filled(kGeneralSupport, {localeSuffix});
}

std::string Endpoints::support(std::string_view localeSuffix,
                               const std::optional<std::string>& bundleID) const {
  return vendorBase_ + filled(kSupport, {localeSuffix, formatted(bundleID)});
}

std::string Endpoints::twitter() const {
  return vendorBase_ + std::string(kTwitter);
}

std::string Endpoints::webSite() const {
  return vendorBase_;
}

std::string Endpoints::storePage(const std::optional<std::string>& appstoreID) const {
  return filled(kStore, {storeHost_, formatted(appstoreID)});
}

bool Endpoints::mayReachHost(std::string_view origin) const {
  return !bridgeIsVendors_ || haveSameOrigin(origin, vendorBase_);
}

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

// "scheme://host:port", or "scheme://host" for the usual port. None for an address with a user
// name: no maker's server has one, and it could hide another host.
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
