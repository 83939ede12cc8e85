#include "core/Identity.h"

#include "platform/Locale.h"
#include "platform/MainBundle.h"

namespace wrenvale {

namespace {

// A language code that also stands in for a missing country; the server's file names rely on it.
constexpr const char* kFallback = "EN";

std::string languageOrFallback(const platform::Locale& locale) {
  const auto languages = locale.preferredLanguages();
  if (!languages.empty()) return languages.front();
  return locale.languageCode().value_or(kFallback);
}

} // namespace

std::optional<std::string> localizedName(const platform::MainBundle& bundle,
                                         const platform::Localization& localization) {
  auto name = localization.localizedInfoString(info::kName);
  return name ? name : stringValue(bundle.objectForInfoDictionaryKey(info::kName));
}

std::optional<std::string> appstoreIDFromInfo(const Value& value) {
  if (value.string()) return *value.string();
  if (value.integer() || value.real()) return std::to_string(integerValue(value));
  return std::nullopt;
}

std::string countryOrFallback(const platform::Locale& locale) {
  return locale.countryCode().value_or(kFallback);
}

std::string localeSuffix(const platform::Locale& locale) {
  return countryOrFallback(locale) + "_" + languageOrFallback(locale);
}

} // namespace wrenvale
