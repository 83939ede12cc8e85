// What a host sends when its user subscribes to the newsletter.

#ifndef WRENVALE_TOOLS_WRENVALE_NEWSLETTER_SUBSCRIPTION_H
#define WRENVALE_TOOLS_WRENVALE_NEWSLETTER_SUBSCRIPTION_H

#include <optional>
#include <string>
#include <string_view>

#include "tools/wrenvale/newsletter/PrivateKey.h"

namespace wrenvale::kit {

constexpr std::string_view kSubscribePath = "/store/subscribe.php";

struct Subscription {
  std::optional<std::string> address; ///< nothing when the data was not what a host sends
  std::string fault;                  ///< then, what is wrong with it; for people
};

/// Reads the value of "data=", percent-decoded: base64, in it one block for `key`, in it "email="
/// and the address. Anyone who has the public key can send anything, so an address is taken only
/// when it is printable ASCII without blanks, has text on both sides of one "@", and is no longer
/// than an address can be.
Subscription subscriptionIn(std::string_view data, const PrivateKey& key);

} // namespace wrenvale::kit

#endif
