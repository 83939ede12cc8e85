#include "tools/wrenvale/newsletter/PrivateKey.h"

#include <openssl/bio.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rsa.h>

namespace wrenvale::kit {

namespace {

struct Free {
  void operator()(BIO* bio) const { BIO_free(bio); }
  void operator()(EVP_PKEY_CTX* context) const { EVP_PKEY_CTX_free(context); }
};

int refusePassword(char*, int, int, void*) {
  return -1;
}

const unsigned char* bytesOf(std::string_view text) {
  return reinterpret_cast<const unsigned char*>(text.data());
}

} // namespace

std::optional<PrivateKey> PrivateKey::fromPEM(std::string_view pem) {
  const std::unique_ptr<BIO, Free> bio(BIO_new_mem_buf(pem.data(), static_cast<int>(pem.size())));
  const std::shared_ptr<EVP_PKEY> key(
      PEM_read_bio_PrivateKey(bio.get(), nullptr, refusePassword, nullptr), EVP_PKEY_free);
  if (!key || !EVP_PKEY_is_a(key.get(), "RSA")) return std::nullopt;
  return PrivateKey(key);
}

std::optional<std::string> PrivateKey::decrypted(std::string_view block) const {
  const std::unique_ptr<EVP_PKEY_CTX, Free> context(EVP_PKEY_CTX_new(key_.get(), nullptr));
  if (!context || EVP_PKEY_decrypt_init(context.get()) <= 0 ||
      EVP_PKEY_CTX_set_rsa_padding(context.get(), RSA_PKCS1_PADDING) <= 0)
    return std::nullopt;
  std::string text(static_cast<std::size_t>(EVP_PKEY_get_size(key_.get())), '\0');
  auto size = text.size();
  if (EVP_PKEY_decrypt(context.get(), reinterpret_cast<unsigned char*>(text.data()), &size,
                       bytesOf(block), block.size()) <= 0)
    return std::nullopt;
  text.resize(size);
  return text;
}

} // namespace wrenvale::kit
