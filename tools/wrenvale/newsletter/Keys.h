// The newsletter's keys: making a pair, and the private half that reads what hosts send.

#ifndef WRENVALE_TOOLS_WRENVALE_NEWSLETTER_KEYS_H
#define WRENVALE_TOOLS_WRENVALE_NEWSLETTER_KEYS_H

#include <memory>
#include <optional>
#include <string>
#include <string_view>

using EVP_PKEY = struct evp_pkey_st;

namespace wrenvale::kit {

/// Cheap to copy. Several threads at once.
class PrivateKey {
public:
  /// From the first private key of a PEM text (RFC 7468); nothing when there is none, when it asks
  /// for a password, and when it is no RSA key.
  static std::optional<PrivateKey> fromPEM(std::string_view pem);

  /// The text of one RSA block (PKCS #1 v1.5), both as raw bytes. For a block that was not made for
  /// this key nothing or, as newer libraries would have it, a text without sense.
  std::optional<std::string> decrypted(std::string_view block) const;

private:
  explicit PrivateKey(std::shared_ptr<EVP_PKEY> key)
      : key_(std::move(key)) {}

  std::shared_ptr<EVP_PKEY> key_;
};

/// Both as PEM text (RFC 7468).
struct KeyPair {
  std::string publicKey;  ///< "PUBLIC KEY": what WRENVALE_PUBLIC_KEY_FILE names
  std::string privateKey; ///< "PRIVATE KEY", without a password
};

/// RSA with the public exponent 65537. Takes up to seconds for many bits. Nothing when the library
/// cannot.
std::optional<KeyPair> newKeyPair(unsigned bits);

} // namespace wrenvale::kit

#endif
