// The server's side of subscribing to the newsletter.

#ifndef WRENVALE_TOOLS_WRENVALE_NEWSLETTER_NEWSLETTER_H
#define WRENVALE_TOOLS_WRENVALE_NEWSLETTER_NEWSLETTER_H

#include <string>
#include <string_view>

#include "tools/wrenvale/newsletter/Inbox.h"
#include "tools/wrenvale/newsletter/PrivateKey.h"

namespace wrenvale::kit {

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
