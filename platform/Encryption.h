// Public-key encryption.

#ifndef WRENVALE_PLATFORM_ENCRYPTION_H
#define WRENVALE_PLATFORM_ENCRYPTION_H

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace wrenvale::platform {

/// An imported RSA public key. Used by one thread at a time.
class PublicKey {
public:
  virtual ~PublicKey() = default;

  /// One RSA block under PKCS #1 v1.5 padding, as raw bytes; nothing when the text is longer than
  /// the key allows (117 bytes for 1024 bits) or encryption fails.
  virtual std::optional<std::string> encrypt(std::string_view plaintext) const = 0;
};

struct ImportedKey {
  std::int16_t status = 0;        ///< 0, or the error that made the import fail
  std::unique_ptr<PublicKey> key; ///< absent when the import failed or no library is there to try
};

/// Any thread, several at once; not the main thread, since the first call may load a library.
class Encryption {
public:
  virtual ~Encryption() = default;

  /// Imports a "PUBLIC KEY" PEM block (RFC 7468).
  virtual ImportedKey importPublicKey(std::string_view pem) = 0;
};

} // namespace wrenvale::platform

#endif
