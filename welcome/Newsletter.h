// Subscribing to the maker's newsletter.

#ifndef WRENVALE_WELCOME_NEWSLETTER_H
#define WRENVALE_WELCOME_NEWSLETTER_H

#include <string>
#include <string_view>

#include "platform/Alert.h"

namespace wrenvale {

class Endpoints;
class Service;

namespace platform {
class Application;
class URLLoading;
} // namespace platform

namespace welcome {

/// Sends the address, encrypted for the maker, and drops the answer. An address that cannot be
/// encrypted (too long for the key, as a rule) is sent as "(null)". Blocks until the exchange is
/// over; background threads only, several at once.
void deliverSubscription(const std::string& address, const Service& service,
                         const Endpoints& endpoints, platform::URLLoading& urlLoading);

/// Tells that an address was refused.
platform::Alert invalidAddressAlert(std::string_view appName,
                                    const platform::Application& application);

} // namespace welcome

} // namespace wrenvale

namespace wrenvale::welcome {

/// Whether the whole text matches [A-Z0-9a-z._%+-]+@[A-Za-z0-9.-]+\.[A-Za-z]{2,4}. A last label of
/// more than four letters is refused on purpose. Takes time in proportion to the text, of whatever
/// length, and no memory.
bool isEmailAddress(std::string_view text);

} // namespace wrenvale::welcome

#endif
