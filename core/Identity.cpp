#include "core/Identity.h"

#include <wrenvale/HTMLAdditions.h>

#include "base/Value.h"
#include "platform/Application.h"
#include "platform/System.h"

namespace wrenvale {

namespace {

// A language code that also stands in for a missing country; the server's file names rely on it.
constexpr const char* kFallback = "EN";

std::string languageOrFallback(const platform::Locale& locale) {
  const auto languages = locale.preferredLanguages();
  return languages.empty() ? kFallback : languages.front();
}

} // namespace

Value infoValue(const Value::Dictionary& info, std::string_view key) {
  const auto found = info.find(key);
  return found == info.end() ? Value() : found->second;
}

std::optional<std::string> localizedName(const Value::Dictionary& info,
                                         const platform::Application& application) {
  auto name = application.localizedString(info::kName, "InfoPlist");
  return name ? name : stringValue(infoValue(info, info::kName));
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

std::string applicationNameForUserAgent(const HostIdentity& host) {
  return urlEncoded(std::string_view(host.appName)) + "/" + std::to_string(host.bundleVersion) +
         " " + formatted(urlEncoded(host.appstoreID));
}

std::optional<std::string> userAgentFor(const HostIdentity& host,
                                        const std::optional<std::string>& machineModel,
                                        const platform::System& system) {
  const auto release = system.sysctlbyname("kern.osrelease");
  if (!release) return std::nullopt;
  // The architecture is part of the format and not taken from the machine.
  return applicationNameForUserAgent(host) + " Darwin/" + *release + " (x86_64) (" +
         formatted(urlEncoded(machineModel)) + ")";
}

} // namespace wrenvale
