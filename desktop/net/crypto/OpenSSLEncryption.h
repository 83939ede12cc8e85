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

/// Makes the library ready without letting it clean up at the end of the process, which would take
/// it away from under a thread that is inside it. Called before anything uses the library, directly
/// or through TLS; has no effect when the host used it first. Any thread.
void setUpCrypto();

} // namespace wrenvale::platform

#endif
