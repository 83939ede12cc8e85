#include "welcome/Newsletter.h"

#include <wrenvale/HTMLAdditions.h>

#include "core/Endpoints.h"
#include "core/LocalizedText.h"
#include "core/Service.h"
#include "platform/URLLoading.h"

namespace wrenvale::welcome {

void deliverSubscription(const std::string& address, const Service& service,
                         const Endpoints& endpoints, platform::URLLoading& urlLoading) {
  const auto data = urlEncoded(service.encryptString("email=" + address));
  urlLoading.sendSynchronousRequest({.url = endpoints.subscription(data)});
}

// "subcribe" is the text that hosts translate.
platform::Alert invalidAddressAlert(std::string_view appName,
                                    const platform::Localization& localization) {
  return {.title = std::string(appName),
          .messageText = localizedText(localization, "Invalid email address"),
          .informativeText =
              localizedText(localization, "Please enter a valid email address to subcribe."),
          .defaultButton = localizedText(localization, "Ok")};
}

} // namespace wrenvale::welcome
