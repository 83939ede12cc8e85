// What a host sends when its user subscribes to the newsletter.

#ifndef WRENVALE_TOOLS_WRENVALE_NEWSLETTER_SUBSCRIPTION_H
#define WRENVALE_TOOLS_WRENVALE_NEWSLETTER_SUBSCRIPTION_H

#include <optional>
#include <string>
#include <string_view>

#include "tools/wrenvale/newsletter/Inbox.h"
#include "tools/wrenvale/newsletter/Keys.h"

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

/// Takes in what hosts send. Several threads at once.
class Newsletter {
public:
  struct Answer {
    int status;       ///< HTTP: 200, 400 for data that no host sends, 500 without an inbox
    std::string text; ///< what came of it, for the log; one line, escaped
  };

  Newsletter(PrivateKey key, Inbox inbox)
      : key_(std::move(key))
      , inbox_(std::move(inbox)) {}

  /// `data` is the value of "data=", percent-decoded.
  Answer take(std::string_view data) const;

private:
  const PrivateKey key_;
  const Inbox inbox_;
};

} // namespace wrenvale::kit

#endif
