#include "tools/wrenvale/newsletter/Newsletter.h"

#include <exception>

#include "tools/wrenvale/newsletter/Subscription.h"
#include "tools/wrenvale/serve/RequestLog.h"

namespace wrenvale::kit {

Newsletter::Answer Newsletter::take(std::string_view data) const {
  const auto subscription = subscriptionIn(data, key_);
  if (!subscription.address) return {400, "newsletter: refused, " + subscription.fault};
  try {
    const auto count = inbox_.add(*subscription.address);
    return {200, "newsletter: " + escaped(*subscription.address) +
                     (count == 1 ? "" : ", for the " + std::to_string(count) + ". time")};
  } catch (const std::exception& error) {
    return {500, "newsletter: lost, " + escaped(error.what())};
  }
}

} // namespace wrenvale::kit
