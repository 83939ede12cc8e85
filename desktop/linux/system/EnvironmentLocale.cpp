#include "desktop/linux/system/EnvironmentLocale.h"

#include <algorithm>

#include "desktop/linux/system/Environment.h"

namespace wrenvale::platform {

namespace {

using Parts = std::vector<std::string_view>;

// Unlike those of <cctype>, they do not depend on the process's locale.
bool isLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

bool isPart(std::string_view text) {
  return !text.empty() && text.size() <= 8 &&
         std::ranges::all_of(text, [](char c) { return isLetter(c) || isDigit(c); });
}

bool isLanguage(std::string_view part) {
  return part.size() >= 2 && std::ranges::all_of(part, isLetter) && part != "POSIX";
}

bool isRegion(std::string_view part) {
  return (part.size() == 2 && std::ranges::all_of(part, isLetter)) ||
         (part.size() == 3 && std::ranges::all_of(part, isDigit));
}

// The parts of a locale name, the language first; none when it names no language.
Parts partsOf(std::string_view name) {
  name = name.substr(0, name.find_first_of(".@"));
  Parts parts;
  bool more = true;
  while (more) {
    more = name.find_first_of("_-") != std::string_view::npos;
    parts.push_back(takeUpTo("_-", name));
    if (!isPart(parts.back())) return {};
  }
  return isLanguage(parts.front()) ? parts : Parts();
}

std::string tagOf(const Parts& parts) {
  std::string tag;
  for (const auto part : parts)
    tag.append(tag.empty() ? "" : "-").append(part);
  return tag;
}

Parts localeParts(const Environment& environment) {
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"})
    if (const auto value = variable(environment, name); !value.empty()) return partsOf(value);
  return {};
}

} // namespace

EnvironmentLocale::EnvironmentLocale(Environment environment)
    : environment_(std::move(environment)) {}

std::optional<std::string> EnvironmentLocale::countryCode() const {
  const auto parts = localeParts(environment_);
  if (parts.empty()) return std::nullopt;
  const auto region = std::find_if(parts.begin() + 1, parts.end(), isRegion);
  if (region == parts.end()) return std::nullopt;
  return std::string(*region);
}

std::vector<std::string> EnvironmentLocale::preferredLanguages() const {
  std::vector<std::string> tags;
  auto entries = variable(environment_, "LANGUAGE");
  while (!entries.empty()) {
    auto tag = tagOf(partsOf(takeUpTo(':', entries)));
    if (!tag.empty() && std::ranges::find(tags, tag) == tags.end()) tags.push_back(std::move(tag));
  }
  const auto parts = localeParts(environment_);
  if (tags.empty() && !parts.empty()) tags.emplace_back(parts.front());
  return tags;
}

} // namespace wrenvale::platform
