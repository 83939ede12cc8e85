// Whether an application is installed, beside the bare system calls; and encryption of a
// subscription, beside the library alone.

#include <sys/stat.h>

#include <cstdlib>
#include <string>

#include <openssl/core_names.h>
#include <openssl/evp.h>
#include <openssl/param_build.h>
#include <openssl/pem.h>
#include <openssl/rsa.h>

#include "benchmarks/Figures.h"
#include "core/BuildConfiguration.h"
#include "desktop/linux/system/DesktopEntries.h"
#include "desktop/net/crypto/OpenSSLEncryption.h"

namespace {

using namespace wrenvale;
using namespace wrenvale::benchmark;

bool isThere(const platform::DesktopEntries& entries, const std::string& identifier) {
  struct stat status {};
  for (const auto& folder : entries.folders())
    if (stat((folder + identifier + ".desktop").c_str(), &status) == 0) return true;
  return false;
}

// `folder` has an application "there".
void measureInstalled(const char* folder) {
  setenv("XDG_DATA_HOME", folder, 1);
  const platform::DesktopEntries entries;
  for (const std::string identifier : {"there", "absent"}) {
    const auto ask = [&] { entries.URLForApplicationWithBundleIdentifier(identifier); };
    say(identifier == "there" ? "installed.present" : "installed.absent", 0,
        timesInTurns(5000, ask, [&] { isThere(entries, identifier); }));
  }
  const auto all = [](const auto& ask) {
    for (int i = 0; i < 200; ++i)
      ask("com.example.application" + std::to_string(i));
  };
  const auto pair = timesInTurns(
      50,
      [&] { all([&](const auto& name) { entries.URLForApplicationWithBundleIdentifier(name); }); },
      [&] { all([&](const auto& name) { isThere(entries, name); }); });
  say("installed.many", 200, {pair.ours / 1e3, pair.reference / 1e3});
}

constexpr std::string_view kPlaintext = "subscriber@example.com;com.example.benchmark";

// The key's numbers, as a program would have them that was built with them in it.
struct Numbers {
  explicit Numbers(const std::string& pem) {
    BIO* text = BIO_new_mem_buf(pem.data(), static_cast<int>(pem.size()));
    EVP_PKEY* key = PEM_read_bio_PUBKEY(text, nullptr, nullptr, nullptr);
    EVP_PKEY_get_bn_param(key, OSSL_PKEY_PARAM_RSA_N, &modulus);
    EVP_PKEY_get_bn_param(key, OSSL_PKEY_PARAM_RSA_E, &exponent);
    EVP_PKEY_free(key);
    BIO_free(text);
  }
  BIGNUM* modulus = nullptr;
  BIGNUM* exponent = nullptr;
};

void encryptBare(const Numbers& numbers) {
  OSSL_PARAM_BLD* builder = OSSL_PARAM_BLD_new();
  OSSL_PARAM_BLD_push_BN(builder, OSSL_PKEY_PARAM_RSA_N, numbers.modulus);
  OSSL_PARAM_BLD_push_BN(builder, OSSL_PKEY_PARAM_RSA_E, numbers.exponent);
  OSSL_PARAM* parameters = OSSL_PARAM_BLD_to_param(builder);
  EVP_PKEY* key = nullptr;
  EVP_PKEY_CTX* import = EVP_PKEY_CTX_new_from_name(nullptr, "RSA", nullptr);
  EVP_PKEY_fromdata_init(import);
  EVP_PKEY_fromdata(import, &key, EVP_PKEY_PUBLIC_KEY, parameters);
  EVP_PKEY_CTX* context = EVP_PKEY_CTX_new(key, nullptr);
  EVP_PKEY_encrypt_init(context);
  EVP_PKEY_CTX_set_rsa_padding(context, RSA_PKCS1_PADDING);
  unsigned char block[1024];
  std::size_t length = sizeof block;
  const auto* text = reinterpret_cast<const unsigned char*>(kPlaintext.data());
  if (EVP_PKEY_encrypt(context, block, &length, text, kPlaintext.size()) != 1) std::exit(1);
  EVP_PKEY_CTX_free(context);
  EVP_PKEY_free(key);
  EVP_PKEY_CTX_free(import);
  OSSL_PARAM_free(parameters);
  OSSL_PARAM_BLD_free(builder);
}

void measureEncryption() {
  const std::string pem = builtInConfiguration().publicKey;
  const Numbers numbers(pem);
  platform::OpenSSLEncryption encryption;
  const auto encrypt = [&] {
    const auto key = encryption.importPublicKey(pem);
    if (!key.encrypt || !key.encrypt(kPlaintext)) std::exit(1);
  };
  encrypt();
  say("encrypt", 0, timesInTurns(500, encrypt, [&] { encryptBare(numbers); }));
}

} // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  measureInstalled(argv[1]);
  measureEncryption();
}
