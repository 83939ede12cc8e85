#include "tools/wrenvale/newsletter/Subscription.h"

#include <algorithm>
#include <exception>

#include <openssl/evp.h>

#include "core/Codecs.h"
#include "tools/wrenvale/serve/RequestLog.h"

namespace wrenvale::kit {

namespace {

constexpr std::string_view kNotEncrypted = "(null)";
constexpr std::string_view kEmail = "email=";
constexpr std::size_t kLongestData = 4096; // more than any key's block takes
constexpr std::size_t kLongestAddress = 254;

// The library overlooks blanks and stray bits; what does not encode to the same text is refused.
std::optional<std::string> base64Decoded(std::string_view text) {
  std::string bytes(text.size(), '\0');
  const int size = EVP_DecodeBlock(reinterpret_cast<unsigned char*>(bytes.data()),
                                   reinterpret_cast<const unsigned char*>(text.data()),
                                   static_cast<int>(text.size()));
  if (size <= 0) return std::nullopt;
  const auto padding = text.size() - 1 - text.find_last_not_of('=');
  if (padding > 2) return std::nullopt;
  bytes.resize(static_cast<std::size_t>(size) - padding);
  if (base64Encoded(bytes) != text) return std::nullopt;
  return bytes;
}

bool isAddress(std::string_view text) {
  const auto at = text.find('@');
  return text.size() <= kLongestAddress && at != 0 && at < text.size() - 1 &&
         std::ranges::count(text, '@') == 1 &&
         std::ranges::all_of(text, [](char c) { return c > ' ' && c <= '~'; });
}

Subscription refused(std::string fault) {
  return {.address = std::nullopt, .fault = std::move(fault)};
}

} // namespace

Subscription subscriptionIn(std::string_view data, const PrivateKey& key) {
  if (data.empty()) return refused("there is no data");
  if (data == kNotEncrypted) return refused("the host could not encrypt the address");
  if (data.size() > kLongestData) return refused("the data is too long");
  const auto block = base64Decoded(data);
  if (!block) return refused("the data is no base64");
  const auto text = key.decrypted(*block);
  // Later releases of OpenSSL give random text for what they cannot decrypt.
  if (!text || !text->starts_with(kEmail))
    return refused("the data is not \"email=\" and an address, encrypted for this server's key");
  const auto address = text->substr(kEmail.size());
  if (!isAddress(address)) return refused("the data holds no e-mail address");
  return {.address = address, .fault = {}};
}

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
