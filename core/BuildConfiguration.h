// What a maker fixes when building the framework.

#ifndef WRENVALE_CORE_BUILDCONFIGURATION_H
#define WRENVALE_CORE_BUILDCONFIGURATION_H

#include <string>

namespace wrenvale {

/// Nothing changes these values at run time: what a maker ships cannot be pointed elsewhere.
struct BuildConfiguration {
  std::string vendorBase;       ///< scheme and host of the maker's server, without a trailing slash
  std::string storeHost;        ///< host of the application store's product pages
  std::string publicKey;        ///< PEM block of the maker's RSA public key
  std::string vendorSiteName;   ///< the maker's web site, as the Help menu names it
  bool bridgeIsVendors = false; ///< only the maker's own pages get the script object
};

/// The values that this library was configured with.
BuildConfiguration builtInConfiguration();

} // namespace wrenvale

#endif
