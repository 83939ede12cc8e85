#include "tools/wrenvale/newsletter/Keys.h"

#include <memory>

#include <openssl/bio.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rsa.h>

namespace wrenvale::kit {

namespace {

struct Free {
  void operator()(BIO* bio) const { BIO_free(bio); }
  void operator()(EVP_PKEY* key) const { EVP_PKEY_free(key); }
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

namespace {

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
