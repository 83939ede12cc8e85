// The service's payload encryption.

#include "core/Service.h"

#include <cstdio>

#include "base/Guard.h"
#include "core/Codecs.h"
#include "platform/Platform.h"

namespace wrenvale {

namespace {

constexpr int kBrokenBuild = 255;

} // namespace

platform::Encrypt Service::_importPublicKey() const {
  auto imported = _platform.encryption.importPublicKey(_configuration.publicKey);
  if (imported.status != 0) {
    // The second line is the list of what was imported: nothing.
    std::fprintf(stderr, "SecItemImport failed (oserr=%d)\n(null)\n", imported.status);
    _platform.application.terminate(kBrokenBuild);
  }
  return std::move(imported.encrypt);
}

std::optional<std::string> Service::encryptString(std::string_view string) const {
  return guarded([&]() -> std::optional<std::string> {
    const auto encrypt = _importPublicKey();
    const auto ciphertext = encrypt ? encrypt(string) : std::nullopt;
    if (!ciphertext) return std::nullopt;
    return base64Encoded(*ciphertext);
  });
}

} // namespace wrenvale
