#include "desktop/net/crypto/OpenSSLEncryption.h"

#include <limits>
#include <memory>

#include <openssl/bio.h>
#include <openssl/crypto.h>
#include <openssl/err.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rsa.h>
#include <openssl/x509.h>

namespace wrenvale::platform {

namespace {

struct Free {
  void operator()(BIO* bio) const { BIO_free(bio); }
  void operator()(EVP_PKEY* key) const { EVP_PKEY_free(key); }
  void operator()(EVP_PKEY_CTX* context) const { EVP_PKEY_CTX_free(context); }
  void operator()(unsigned char* bytes) const { OPENSSL_free(bytes); }
};

template <class Type>
using Owned = std::unique_ptr<Type, Free>;

constexpr std::int16_t kUnknownError = -1;

// Never ask the user for the password of an encrypted block.
int refusePassword(char*, int, int, void*) {
  return -1;
}

Owned<EVP_PKEY> keyFromPEM(std::string_view pem) {
  if (pem.size() > std::numeric_limits<int>::max()) return nullptr;
  const Owned<BIO> bio(BIO_new_mem_buf(pem.data(), static_cast<int>(pem.size())));
  unsigned char* bytes = nullptr;
  long size = 0;
  if (!bio || !PEM_bytes_read_bio(&bytes, &size, nullptr, PEM_STRING_PUBLIC, bio.get(),
                                  refusePassword, nullptr))
    return nullptr;
  const Owned<unsigned char> owner(bytes);
  const unsigned char* position = bytes;
  return Owned<EVP_PKEY>(d2i_PUBKEY(nullptr, &position, size));
}

bool isRSA(const EVP_PKEY& key) {
  if (EVP_PKEY_is_a(&key, "RSA")) return true;
  ERR_raise(ERR_LIB_EVP, EVP_R_EXPECTING_AN_RSA_KEY);
  return false;
}

std::int16_t takeError() {
  const auto status = static_cast<std::int16_t>(ERR_peek_last_error());
  ERR_clear_error();
  return status == 0 ? kUnknownError : status;
}

std::optional<std::string> encrypted(EVP_PKEY& key, std::string_view plaintext) {
  const Owned<EVP_PKEY_CTX> context(EVP_PKEY_CTX_new_from_pkey(nullptr, &key, nullptr));
  if (!context || EVP_PKEY_encrypt_init(context.get()) <= 0) return std::nullopt;
  if (EVP_PKEY_CTX_set_rsa_padding(context.get(), RSA_PKCS1_PADDING) <= 0) return std::nullopt;
  std::string block(static_cast<std::size_t>(EVP_PKEY_get_size(&key)), '\0');
  auto size = block.size();
  if (EVP_PKEY_encrypt(context.get(), reinterpret_cast<unsigned char*>(block.data()), &size,
                       reinterpret_cast<const unsigned char*>(plaintext.data()),
                       plaintext.size()) <= 0)
    return std::nullopt;
  block.resize(size);
  return block;
}

} // namespace

ImportedKey OpenSSLEncryption::importPublicKey(std::string_view pem) {
  setUpCrypto();
  ERR_clear_error();
  const std::shared_ptr<EVP_PKEY> key = keyFromPEM(pem);
  if (!key || !isRSA(*key)) return {.status = takeError()};
  ERR_clear_error();
  return {.encrypt = [key](std::string_view plaintext) {
    auto block = encrypted(*key, plaintext);
    if (!block) ERR_clear_error();
    return block;
  }};
}

void setUpCrypto() {
  OPENSSL_init_crypto(OPENSSL_INIT_NO_ATEXIT, nullptr);
}

} // namespace wrenvale::platform
