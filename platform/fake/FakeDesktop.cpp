#include "platform/fake/FakeDesktop.h"

namespace wrenvale::platform {

std::optional<std::string> FakeLocalization::localizedInfoString(std::string_view key) const {
  const auto found = info.find(key);
  return found == info.end() ? std::nullopt : std::optional(found->second);
}

std::string FakeLocalization::localizedStringForKey(std::string_view key,
                                                    std::string_view table) const {
  const auto found = strings.find({std::string(table), std::string(key)});
  return found == strings.end() ? std::string(key) : found->second;
}

void FakeApplication::activateIgnoringOtherApps(bool) {
  ++activations;
}

bool FakeApplication::registerFont(std::string_view resource, std::string_view extension) {
  fonts.push_back(std::string(resource) + "." + std::string(extension));
  return hasFonts;
}

bool FakeWorkspace::openURL(std::string_view url) {
  while (!moments_.empty() && moments_.front() <= clock_.now() - std::chrono::seconds(2))
    moments_.pop_front();
  if (moments_.size() == 5) return false;
  moments_.push_back(clock_.now());
  opened.emplace_back(url);
  return hasOpener;
}

} // namespace wrenvale::platform
