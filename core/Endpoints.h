// Every address on the maker's server, and the one in the application store.

#ifndef WRENVALE_CORE_ENDPOINTS_H
#define WRENVALE_CORE_ENDPOINTS_H

#include <optional>
#include <string>
#include <string_view>

namespace wrenvale {

struct BuildConfiguration;

/// Values are put into the addresses as they are; a value that is missing is written "(null)".
class Endpoints {
public:
  explicit Endpoints(const BuildConfiguration& configuration);

  // Downloads.
  std::string resetDocument(std::string_view localeSuffix) const;
  /// `variant` is "_U" when an update is to be announced, "_F" on a first run, else "".
  std::string recommenderDocument(std::string_view localeSuffix, std::string_view variant) const;
  std::string icon(const std::optional<std::string>& fileName) const;
  std::string newsletterPage(std::string_view country) const;
  /// `data` is percent-encoded already.
  std::string subscription(const std::optional<std::string>& data) const;

  // Pages for the user's browser.
  std::string moreApps(std::string_view localeSuffix) const;
  std::string generalSupport(std::string_view localeSuffix) const;
  std::string support(std::string_view localeSuffix,
                      const std::optional<std::string>& bundleID) const;
  std::string twitter() const;
  std::string webSite() const;

  /// The application's page for the store application; always in the "us" storefront.
  std::string storePage(const std::optional<std::string>& appstoreID) const;

  /// Whether a page of this origin may get the script object: any, or the maker's only, as the
  /// framework was configured.
  bool mayReachHost(std::string_view origin) const;

private:
  std::string vendorBase_;
  std::string storeHost_;
  bool bridgeIsVendors_;
};

/// Whether two addresses of the web have the same origin. Letter case of scheme and host does not
/// matter, nor whether a scheme's usual port is written. What is no such address has none, and is
/// never the same.
bool haveSameOrigin(std::string_view one, std::string_view other);

} // namespace wrenvale

#endif
