// The service's links: the maker's pages, opened in the user's browser, and the store's.

#include <wrenvale/KVXWrenvale.h>

#include "core/Endpoints.h"
#include "core/Guard.h"
#include "platform/Platform.h"

namespace wrenvale {

void KVXWrenvale::openAppstoreForApp() {
  guarded([&] { _platform.workspace.openURL(_endpoints->storePage(_macAppstoreID)); });
}

void KVXWrenvale::openSupportWebPage() {
  guarded([&] { _platform.workspace.openURL(_endpoints->support(_localeSuffix, bundleID())); });
}

void KVXWrenvale::openGeneralSupport() {
  guarded([&] { _platform.workspace.openURL(_endpoints->generalSupport(_localeSuffix)); });
}

void KVXWrenvale::moreApps() {
  guarded([&] { _platform.workspace.openURL(_endpoints->moreApps(_localeSuffix)); });
}

void KVXWrenvale::followOnTwitter() {
  guarded([&] { _platform.workspace.openURL(_endpoints->twitter()); });
}

void KVXWrenvale::openKVXWebPage() {
  guarded([&] { _platform.workspace.openURL(_endpoints->webSite()); });
}

} // namespace wrenvale
