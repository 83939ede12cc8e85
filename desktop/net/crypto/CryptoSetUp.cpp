#include "desktop/net/crypto/CryptoSetUp.h"

#include <openssl/crypto.h>

namespace wrenvale::platform {

void setUpCrypto() {
  OPENSSL_init_crypto(OPENSSL_INIT_NO_ATEXIT, nullptr);
}

} // namespace wrenvale::platform
