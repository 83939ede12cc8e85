// A new key pair for newsletter subscriptions.

#ifndef WRENVALE_TOOLS_WRENVALE_NEWSLETTER_KEYPAIR_H
#define WRENVALE_TOOLS_WRENVALE_NEWSLETTER_KEYPAIR_H

#include <optional>
#include <string>

namespace wrenvale::kit {

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
