// Public-key encryption with OpenSSL.

#ifndef WRENVALE_DESKTOP_NET_CRYPTO_OPENSSLENCRYPTION_H
#define WRENVALE_DESKTOP_NET_CRYPTO_OPENSSLENCRYPTION_H

#include "platform/Net.h"

namespace wrenvale::platform {

/// RSA keys only; a key of another kind is a failed import. The status of a failed import is the
/// low 16 bits of the library's error, which is taken off the thread's error queue. Once the
/// process is ending nothing is imported and nothing encrypted. Stateless.
class OpenSSLEncryption final : public Encryption {
public:
  ImportedKey importPublicKey(std::string_view pem) override;
};

} // namespace wrenvale::platform

#endif
