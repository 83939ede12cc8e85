// The network and what goes with it: downloads, encryption, JSON. A port may load all of it late,
// on the first call.

#ifndef WRENVALE_PLATFORM_NET_H
#define WRENVALE_PLATFORM_NET_H

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Value.h"

namespace wrenvale::platform {

struct URLRequest {
  std::string url{}; ///< absolute, already percent-encoded
  std::string httpMethod = "GET";
  std::vector<std::pair<std::string, std::string>> headers{}; ///< instead of the client's own
  std::chrono::seconds timeoutInterval{60};                   ///< for the whole exchange
};

/// Downloads over HTTP. Background threads only; several may call at once. Nothing is cached and no
/// cookie is kept.
class URLLoading {
public:
  virtual ~URLLoading() = default;

  /// The body of the answer, whatever its status code; nothing when none arrived whole within the
  /// time-out, when it was longer than 16 MiB, or when the process is ending.
  virtual std::optional<std::string> sendSynchronousRequest(const URLRequest& request) = 0;
};

/// One RSA block under PKCS #1 v1.5 padding, as raw bytes; nothing when the text is longer than the
/// key allows (117 bytes for 1024 bits) or encryption fails. Used by one thread at a time.
using Encrypt = std::function<std::optional<std::string>(std::string_view plaintext)>;

struct ImportedKey {
  std::int16_t status = 0; ///< 0, or the error that made the import fail
  Encrypt encrypt{};       ///< under this key; null when there is no key or no library to use it
};

/// Public-key encryption. Any thread, several at once; not the main thread, since the first call
/// may load a library.
class Encryption {
public:
  virtual ~Encryption() = default;

  /// Imports a "PUBLIC KEY" PEM block (RFC 7468).
  virtual ImportedKey importPublicKey(std::string_view pem) = 0;
};

/// Reads JSON documents (RFC 8259). Any thread. Takes text of any origin: the whole text is checked
/// before anything is returned, and nesting is bounded.
class JSONSerialization {
public:
  virtual ~JSONSerialization() = default;

  /// The document, an array or a dictionary; nothing when the text is none. A whole number becomes
  /// an integer, or beyond the signed ones a real; one beyond 64 bits makes the text no document.
  /// Of a key that stands twice in one dictionary the last value counts.
  virtual std::optional<Value> JSONObjectWithData(std::string data) = 0;
};

} // namespace wrenvale::platform

#endif
