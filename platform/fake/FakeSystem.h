// In-memory stand-ins for what the system says and does. Tests set the public members; nothing is
// thread-safe, since the fake queues run everything on the test's own thread.

#ifndef WRENVALE_PLATFORM_FAKE_FAKESYSTEM_H
#define WRENVALE_PLATFORM_FAKE_FAKESYSTEM_H

#include <deque>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/System.h"

namespace wrenvale::platform {

class FakeSystem : public System {
public:
  Date now() const override { return time; }
  std::uint32_t arc4random() override;
  std::optional<std::string> sysctlbyname(std::string_view name) const override;
  bool removeItemAtPath(std::string_view path) override;

  void advance(std::chrono::microseconds by) { time += by; }

  Date time = Date(std::chrono::hours(24) * 365 * 50); ///< stands still until the test moves it
  std::deque<std::uint32_t> numbers; ///< handed out first; then a fixed sequence that looks random
  std::map<std::string, std::string, std::less<>> values = {{"hw.model", "Model1,1"},
                                                            {"kern.osrelease", "14.5.0"}};
  std::set<std::string, std::less<>> files; ///< names, and nothing in them
  std::vector<std::string> removals;        ///< every path whose removal was asked for, in order

private:
  std::uint64_t state_ = 1;
};

class FakeLocale : public Locale {
public:
  std::optional<std::string> countryCode() const override { return country; }
  std::vector<std::string> preferredLanguages() const override { return languages; }

  std::optional<std::string> country = "US";
  std::vector<std::string> languages = {"en"};
};

class FakeInstalledApplications : public InstalledApplications {
public:
  std::optional<std::string>
  URLForApplicationWithBundleIdentifier(std::string_view bundleIdentifier) const override;

  std::set<std::string, std::less<>> identifiers;
  mutable std::vector<std::string> questions; ///< every identifier asked for, in order
};

} // namespace wrenvale::platform

#endif
