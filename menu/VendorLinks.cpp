// The service's links: the maker's pages, opened in the user's browser.

#include "core/Service.h"

#include "base/Guard.h"
#include "platform/Platform.h"

namespace wrenvale {

void Service::openSupportWebPage() {
  guarded([&] { _platform.application.openURL(_endpoints.support(_localeSuffix, bundleID())); });
}

void Service::openGeneralSupport() {
  guarded([&] { _platform.application.openURL(_endpoints.generalSupport(_localeSuffix)); });
}

void Service::moreApps() {
  guarded([&] { _platform.application.openURL(_endpoints.moreApps(_localeSuffix)); });
}

void Service::followOnTwitter() {
  guarded([&] { _platform.application.openURL(_endpoints.twitter()); });
}

void Service::openKVXWebPage() {
  guarded([&] { _platform.application.openURL(_endpoints.webSite()); });
}

} // namespace wrenvale
