#include "desktop/net/crypto/OpenSSLEncryption.h"

#include <gmock/gmock.h>
#include <openssl/err.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rsa.h>

#include <thread>
#include <vector>

#include "tests/desktop/linux/TemporaryFolder.h"

namespace wrenvale::platform {

namespace {

std::string developmentKey() {
  return contentsOf(WRENVALE_DEVELOPMENT_PUBLIC_KEY);
}

// What the maker's server reads.
std::string decrypted(const std::string& block) {
  const auto pem = contentsOf(WRENVALE_DEVELOPMENT_PRIVATE_KEY);
  auto* bio = BIO_new_mem_buf(pem.data(), static_cast<int>(pem.size()));
  auto* key = PEM_read_bio_PrivateKey(bio, nullptr, nullptr, nullptr);
  auto* context = EVP_PKEY_CTX_new(key, nullptr);
  std::string text(1024, '\0');
  auto size = text.size();
  EVP_PKEY_decrypt_init(context);
  EVP_PKEY_CTX_set_rsa_padding(context, RSA_PKCS1_PADDING);
  const int done =
      EVP_PKEY_decrypt(context, reinterpret_cast<unsigned char*>(text.data()), &size,
                       reinterpret_cast<const unsigned char*>(block.data()), block.size());
  EVP_PKEY_CTX_free(context);
  EVP_PKEY_free(key);
  BIO_free(bio);
  return done == 1 ? text.substr(0, size) : "cannot be decrypted";
}

std::string publicPEM(EVP_PKEY* key) {
  auto* bio = BIO_new(BIO_s_mem());
  PEM_write_bio_PUBKEY(bio, key);
  char* data = nullptr;
  const auto size = BIO_get_mem_data(bio, &data);
  std::string pem(data, static_cast<std::size_t>(size));
  BIO_free(bio);
  EVP_PKEY_free(key);
  return pem;
}

TEST(OpenSSLEncryption, EncryptsWhatThePrivateKeyReads) {
  const auto imported = OpenSSLEncryption().importPublicKey(developmentKey());
  ASSERT_EQ(imported.status, 0);
  ASSERT_TRUE(imported.encrypt);
  const std::string binary("\0email=\xC3\xA9", 9);
  for (const auto& text : {std::string(), binary, std::string(117, 'x')}) {
    const auto block = imported.encrypt(text);
    ASSERT_TRUE(block) << text.size();
    EXPECT_EQ(block->size(), 128U);
    EXPECT_EQ(decrypted(*block), text);
    EXPECT_NE(imported.encrypt(text), block) << "the padding is random";
  }
  EXPECT_EQ(imported.encrypt(std::string(118, 'x')), std::nullopt);
  EXPECT_EQ(ERR_peek_error(), 0U) << "errors stay with the host's own use of the library";
}

TEST(OpenSSLEncryption, RefusesWhatIsNoPublicRSAKey) {
  const auto good = developmentKey();
  auto otherType = good;
  for (std::size_t at = 0; (at = otherType.find("PUBLIC KEY", at)) != std::string::npos; at += 14)
    otherType.replace(at, 10, "RSA PUBLIC KEY");
  auto flipped = good;
  flipped[40] = flipped[40] == 'A' ? 'B' : 'A';
  auto encryptedBlock = good;
  encryptedBlock.insert(
      good.find('\n') + 1,
      "Proc-Type: 4,ENCRYPTED\nDEK-Info: AES-128-CBC,00000000000000000000000000000000\n\n");
  const struct {
    const char* name;
    std::string pem;
  } rows[] = {
      {"empty", ""},
      {"text", "no key at all"},
      {"no footer", good.substr(0, good.size() / 2)},
      {"no base64", "-----BEGIN PUBLIC KEY-----\n!!!!\n-----END PUBLIC KEY-----\n"},
      {"empty block", "-----BEGIN PUBLIC KEY-----\n-----END PUBLIC KEY-----\n"},
      {"no key inside", "-----BEGIN PUBLIC KEY-----\nAAAA\n-----END PUBLIC KEY-----\n"},
      {"broken structure", flipped},
      {"other block", otherType},
      {"wants a password", encryptedBlock},
      {"private key", contentsOf(WRENVALE_DEVELOPMENT_PRIVATE_KEY)},
      {"elliptic curve", publicPEM(EVP_EC_gen("P-256"))},
      {"signatures only", publicPEM(EVP_PKEY_Q_keygen(nullptr, nullptr, "ED25519"))},
  };
  for (const auto& row : rows) {
    const auto imported = OpenSSLEncryption().importPublicKey(row.pem);
    EXPECT_NE(imported.status, 0) << row.name;
    EXPECT_FALSE(imported.encrypt) << row.name;
    EXPECT_EQ(ERR_peek_error(), 0U) << row.name;
  }
  EXPECT_EQ(OpenSSLEncryption().importPublicKey("").status, PEM_R_NO_START_LINE);
}

TEST(OpenSSLEncryption, ServesManyThreadsAtOnce) {
  OpenSSLEncryption encryption;
  std::vector<std::thread> threads;
  for (int i = 0; i < 8; ++i) {
    threads.emplace_back([&encryption, text = "email=" + std::to_string(i)] {
      for (int round = 0; round < 20; ++round) {
        const auto imported = encryption.importPublicKey(developmentKey());
        ASSERT_TRUE(imported.encrypt);
        EXPECT_EQ(decrypted(imported.encrypt(text).value_or("")), text);
        EXPECT_NE(encryption.importPublicKey("broken").status, 0);
      }
    });
  }
  for (auto& thread : threads)
    thread.join();
}

} // namespace

} // namespace wrenvale::platform
