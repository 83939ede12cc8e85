// The cryptography library's life in a process that ends while threads still use it.

#ifndef WRENVALE_DESKTOP_NET_CRYPTO_CRYPTOSETUP_H
#define WRENVALE_DESKTOP_NET_CRYPTO_CRYPTOSETUP_H

namespace wrenvale::platform {

/// Makes the library ready without letting it clean up at the end of the process, which would take
/// it away from under a thread that is inside it. Called before anything uses the library, directly
/// or through TLS; has no effect when the host used it first. Any thread.
void setUpCrypto();

} // namespace wrenvale::platform

#endif
