#include "tools/wrenvale/newsletter/KeyPair.h"

#include <openssl/bio.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rsa.h>

#include <memory>

namespace wrenvale::kit {

namespace {

struct Free {
  void operator()(BIO* bio) const { BIO_free(bio); }
  void operator()(EVP_PKEY* key) const { EVP_PKEY_free(key); }
};

std::string textIn(BIO* bio) {
  char* data = nullptr;
  const auto size = BIO_get_mem_data(bio, &data);
  return {data, static_cast<std::size_t>(size)};
}

} // namespace

std::optional<KeyPair> newKeyPair(unsigned bits) {
  const std::unique_ptr<EVP_PKEY, Free> key(EVP_RSA_gen(bits));
  const std::unique_ptr<BIO, Free> publicText(BIO_new(BIO_s_mem()));
  const std::unique_ptr<BIO, Free> privateText(BIO_new(BIO_s_secmem()));
  if (!key || !PEM_write_bio_PUBKEY(publicText.get(), key.get()) ||
      !PEM_write_bio_PrivateKey(privateText.get(), key.get(), nullptr, nullptr, 0, nullptr,
                                nullptr))
    return std::nullopt;
  return KeyPair{.publicKey = textIn(publicText.get()), .privateKey = textIn(privateText.get())};
}

} // namespace wrenvale::kit
