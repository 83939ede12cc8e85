#include "welcome/Newsletter.h"

#include <wrenvale/HTMLAdditions.h>

#include <algorithm>

#include "core/Endpoints.h"
#include "core/Identity.h"
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

namespace {

// The pattern means ASCII, whatever the locale calls a letter.
bool isLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool isOfDomain(char c) {
  return isLetter(c) || (c >= '0' && c <= '9') || c == '.' || c == '-';
}

bool isOfLocalPart(char c) {
  return isOfDomain(c) || c == '_' || c == '%' || c == '+';
}

template <class Predicate>
bool someAndAll(std::string_view text, Predicate predicate) {
  return !text.empty() && std::all_of(text.begin(), text.end(), predicate);
}

} // namespace

// One pass is enough: neither side of the "@" may hold another one, and the last label begins after
// the last dot.
bool isEmailAddress(std::string_view text) {
  const auto at = text.find('@');
  const auto dot = text.rfind('.');
  if (at == std::string_view::npos || dot == std::string_view::npos || dot < at) return false;
  const auto lastLabel = text.substr(dot + 1);
  return lastLabel.size() >= 2 && lastLabel.size() <= 4 && someAndAll(lastLabel, isLetter) &&
         someAndAll(text.substr(at + 1, dot - at - 1), isOfDomain) &&
         someAndAll(text.substr(0, at), isOfLocalPart);
}

} // namespace wrenvale::welcome
