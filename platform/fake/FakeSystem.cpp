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

} // namespace wrenvale::platform
