#include "desktop/net/crypto/OpenSSLEncryption.h"

#include <gmock/gmock.h>
#include <openssl/err.h>
#include <openssl/pem.h>

#include <cstdlib>

#include "tests/desktop/linux/TemporaryFolder.h"

namespace wrenvale::platform {

namespace {

std::string developmentKey() {
  return contentsOf(WRENVALE_DEVELOPMENT_PUBLIC_KEY);
}

std::string outputOf(const std::string& command) {
  const TemporaryFolder folder;
  EXPECT_EQ(std::system((command + " >" + folder.path("/output")).c_str()), 0);
  return contentsOf(folder.path("/output"));
}

TEST(OpenSSLEncryption, EncryptsWhatThePrivateKeyReads) {
  const auto imported = OpenSSLEncryption().importPublicKey(developmentKey());
  ASSERT_TRUE(imported.status == 0 && imported.encrypt);
  const TemporaryFolder folder;
  const std::string decrypted =
      "openssl pkeyutl -decrypt -inkey " WRENVALE_DEVELOPMENT_PRIVATE_KEY " -in ";
  const std::string binary("\0email=\xC3\xA9", 9);
  for (const auto& text : {std::string(), binary, std::string(117, 'x')}) {
    const auto block = imported.encrypt(text);
    ASSERT_TRUE(block) << text.size();
    EXPECT_EQ(block->size(), 128U);
    folder.write("/block", *block);
    EXPECT_EQ(outputOf(decrypted + folder.path("/block")), text);
    EXPECT_NE(imported.encrypt(text), block) << "the padding is random";
  }
  EXPECT_EQ(imported.encrypt(std::string(118, 'x')), std::nullopt);
  EXPECT_EQ(ERR_peek_error(), 0U) << "errors stay with the host's own use of the library";
}

TEST(OpenSSLEncryption, RefusesWhatIsNoPublicRSAKey) {
  const auto good = developmentKey();
  auto encryptedBlock = good;
  encryptedBlock.insert(
      good.find('\n') + 1,
      "Proc-Type: 4,ENCRYPTED\nDEK-Info: AES-128-CBC,00000000000000000000000000000000\n\n");
  for (const auto& pem :
       {std::string(), good.substr(0, good.size() / 2), encryptedBlock,
        std::string("-----BEGIN PUBLIC KEY-----\nAAAA\n-----END PUBLIC KEY-----\n"),
        contentsOf(WRENVALE_DEVELOPMENT_PRIVATE_KEY),
        outputOf("openssl genpkey -algorithm ED25519 | openssl pkey -pubout")}) {
    const auto imported = OpenSSLEncryption().importPublicKey(pem);
    EXPECT_NE(imported.status, 0) << pem;
    EXPECT_FALSE(imported.encrypt) << pem;
    EXPECT_EQ(ERR_peek_error(), 0U) << pem;
  }
  EXPECT_EQ(OpenSSLEncryption().importPublicKey("").status, PEM_R_NO_START_LINE);
}

} // namespace

} // namespace wrenvale::platform
