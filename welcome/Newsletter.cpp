#include "welcome/Newsletter.h"

#include <wrenvale/HTMLAdditions.h>

#include "core/Endpoints.h"
#include "core/LocalizedText.h"
#include "core/Service.h"
#include "platform/Net.h"

namespace wrenvale::welcome {

void deliverSubscription(const std::string& address, const Service& service,
                         const Endpoints& endpoints, platform::URLLoading& urlLoading) {
  const auto data = urlEncoded(service.encryptString("email=" + address));
  urlLoading.sendSynchronousRequest({.url = endpoints.subscription(data)});
}

// "subcribe" is the text that hosts translate.
platform::Alert invalidAddressAlert(std::string_view appName,
                                    const platform::Application& application) {
  return {.title = std::string(appName),
          .messageText = localizedText(application, "Invalid email address"),
          .informativeText =
              localizedText(application, "Please enter a valid email address to subcribe."),
          .defaultButton = localizedText(application, "Ok")};
}

} // namespace wrenvale::welcome
