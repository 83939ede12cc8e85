#include "platform/fake/FakeSystem.h"

namespace wrenvale::platform {

namespace {

class FakePublicKey final : public PublicKey {
public:
  explicit FakePublicKey(std::size_t longest)
      : longest_(longest) {}

  std::optional<std::string> encrypt(std::string_view plaintext) const override {
    if (plaintext.size() > longest_) return std::nullopt;
    return "[" + std::string(plaintext) + "]";
  }

private:
  const std::size_t longest_;
};

} // namespace

Value FakeMainBundle::objectForInfoDictionaryKey(std::string_view key) const {
  const auto found = info.find(key);
  return found == info.end() ? Value() : found->second;
}

std::optional<std::string> FakeKernel::sysctlbyname(std::string_view name) const {
  const auto found = values.find(name);
  return found == values.end() ? std::nullopt : std::optional(found->second);
}

std::uint32_t FakeRandom::arc4random() {
  if (!numbers.empty()) {
    const auto number = numbers.front();
    numbers.pop_front();
    return number;
  }
  // The low bits of a linear congruence repeat soon, so the high ones are handed out.
  state_ = state_ * 6364136223846793005U + 1442695040888963407U;
  return static_cast<std::uint32_t>(state_ >> 32);
}

std::optional<std::string> FakeURLLoading::sendSynchronousRequest(const URLRequest& request) {
  requests.push_back(request);
  if (whileLoading) whileLoading();
  const auto found = answers.find(request.url);
  return cancelled_ || found == answers.end() ? std::nullopt : std::optional(found->second);
}

ImportedKey FakeEncryption::importPublicKey(std::string_view pem) {
  importedPEM = pem;
  if (status != 0 || moduleMissing) return {.status = status, .key = nullptr};
  return {.status = 0, .key = std::make_unique<FakePublicKey>(longest)};
}

std::optional<Value> FakeJSON::JSONObjectWithData(std::string data) {
  const auto found = documents.find(data);
  if (found == documents.end()) return std::nullopt;
  return found->second;
}

std::optional<std::string> FakeInstalledApplications::URLForApplicationWithBundleIdentifier(
    std::string_view bundleIdentifier) const {
  questions.emplace_back(bundleIdentifier);
  if (!identifiers.contains(bundleIdentifier)) return std::nullopt;
  return "/applications/" + std::string(bundleIdentifier) + ".desktop";
}

bool FakeFileManager::removeItemAtPath(std::string_view path) {
  removals.emplace_back(path);
  return files.erase(removals.back()) > 0;
}

} // namespace wrenvale::platform
