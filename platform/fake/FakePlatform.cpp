#include "platform/fake/FakePlatform.h"

#include "platform/fake/FakeApplication.h"
#include "platform/fake/FakeNet.h"
#include "platform/fake/FakeSystem.h"

namespace wrenvale::platform {

std::uint32_t FakeSystem::arc4random() {
  if (!numbers.empty()) {
    const auto number = numbers.front();
    numbers.pop_front();
    return number;
  }
  // The low bits of a linear congruence repeat soon, so the high ones are handed out.
  state_ = state_ * 6364136223846793005U + 1442695040888963407U;
  return static_cast<std::uint32_t>(state_ >> 32);
}

std::optional<std::string> FakeSystem::sysctlbyname(std::string_view name) const {
  const auto found = values.find(name);
  return found == values.end() ? std::nullopt : std::optional(found->second);
}

bool FakeSystem::removeItemAtPath(std::string_view path) {
  removals.emplace_back(path);
  return files.erase(removals.back()) > 0;
}

std::optional<std::string> FakeInstalledApplications::URLForApplicationWithBundleIdentifier(
    std::string_view bundleIdentifier) const {
  questions.emplace_back(bundleIdentifier);
  if (!identifiers.contains(bundleIdentifier)) return std::nullopt;
  return "/applications/" + std::string(bundleIdentifier) + ".desktop";
}

std::optional<std::string> FakeURLLoading::sendSynchronousRequest(const URLRequest& request) {
  requests.push_back(request);
  if (whileLoading) whileLoading();
  const auto found = answers.find(request.url);
  return found == answers.end() ? std::nullopt : std::optional(found->second);
}

ImportedKey FakeEncryption::importPublicKey(std::string_view pem) {
  importedPEM = pem;
  if (status != 0 || moduleMissing) return {.status = status};
  return {.encrypt = [longest = longest](std::string_view text) -> std::optional<std::string> {
    if (text.size() > longest) return std::nullopt;
    return "[" + std::string(text) + "]";
  }};
}

std::optional<Value> FakeJSON::JSONObjectWithData(std::string data) {
  const auto found = documents.find(data);
  if (found == documents.end()) return std::nullopt;
  return found->second;
}

bool FakeApplication::openURL(std::string_view url) {
  while (!moments_.empty() && moments_.front() <= clock_.now() - std::chrono::seconds(2))
    moments_.pop_front();
  if (moments_.size() == 5) return false;
  moments_.push_back(clock_.now());
  opened.emplace_back(url);
  return hasOpener;
}

std::optional<std::string> FakeApplication::localizedString(std::string_view key,
                                                            std::string_view table) const {
  const auto found = strings.find({std::string(table), std::string(key)});
  return found == strings.end() ? std::nullopt : std::optional(found->second);
}

bool FakeApplication::registerFont(std::string_view resource, std::string_view extension) {
  fonts.push_back(std::string(resource) + "." + std::string(extension));
  return hasFonts;
}

} // namespace wrenvale::platform
