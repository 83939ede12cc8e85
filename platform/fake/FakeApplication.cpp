#include "platform/fake/FakeApplication.h"

namespace wrenvale::platform {

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
