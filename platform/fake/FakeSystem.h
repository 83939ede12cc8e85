// In-memory stand-ins for what the system says and does. Tests set the public members; nothing is
// thread-safe, since the fake queues run everything on the test's own thread.

#ifndef WRENVALE_PLATFORM_FAKE_FAKESYSTEM_H
#define WRENVALE_PLATFORM_FAKE_FAKESYSTEM_H

#include <deque>
#include <functional>
#include <limits>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/Clock.h"
#include "platform/Encryption.h"
#include "platform/Files.h"
#include "platform/JSONSerialization.h"
#include "platform/Kernel.h"
#include "platform/Locale.h"
#include "platform/MainBundle.h"
#include "platform/Random.h"
#include "platform/URLLoading.h"
#include "platform/Workspace.h"

namespace wrenvale::platform {

class FakeMainBundle : public MainBundle {
public:
  Value objectForInfoDictionaryKey(std::string_view key) const override;

  Value::Dictionary info;
};

class FakeLocale : public Locale {
public:
  std::optional<std::string> countryCode() const override { return country; }
  std::optional<std::string> languageCode() const override { return language; }
  std::vector<std::string> preferredLanguages() const override { return languages; }

  std::optional<std::string> country = "US";
  std::optional<std::string> language = "en";
  std::vector<std::string> languages = {"en"};
};

class FakeKernel : public Kernel {
public:
  std::optional<std::string> sysctlbyname(std::string_view name) const override;
  double appKitVersionNumber() const override { return version; }

  std::map<std::string, std::string, std::less<>> values = {{"hw.model", "Model1,1"},
                                                            {"kern.osrelease", "14.5.0"}};
  double version = std::numeric_limits<double>::infinity();
};

/// Stands still until the test moves it.
class FakeClock : public Clock {
public:
  Date now() const override { return time; }
  void advance(std::chrono::microseconds by) { time += by; }

  Date time = Date(std::chrono::hours(24) * 365 * 50);
};

/// Hands out `numbers` in order, then a fixed sequence that looks random.
class FakeRandom : public Random {
public:
  std::uint32_t arc4random() override;

  std::deque<std::uint32_t> numbers;

private:
  std::uint64_t state_ = 1;
};

/// A network of answers by address; every other address cannot be reached.
class FakeURLLoading : public URLLoading {
public:
  std::optional<std::string> sendSynchronousRequest(const URLRequest& request) override;
  void cancelAllRequests() override { cancelled_ = true; }

  std::map<std::string, std::string> answers;
  std::vector<URLRequest> requests;   ///< all that were sent, in order
  std::function<void()> whileLoading; ///< called during each request

private:
  bool cancelled_ = false; // for ever
};

/// "Encrypts" by putting the text between brackets, so that a test can read what was sent.
class FakeEncryption : public Encryption {
public:
  ImportedKey importPublicKey(std::string_view pem) override;

  std::int16_t status = 0;    ///< of every import
  bool moduleMissing = false; ///< no key and no error
  std::size_t longest = 117;  ///< longest text that the key takes, in bytes
  std::string importedPEM;    ///< the last one
};

/// Knows the documents that the test filed under their text; any other text is no document.
class FakeJSON : public JSONSerialization {
public:
  std::optional<Value> JSONObjectWithData(std::string data) override;

  std::map<std::string, Value> documents;
};

class FakeInstalledApplications : public InstalledApplications {
public:
  std::optional<std::string>
  URLForApplicationWithBundleIdentifier(std::string_view bundleIdentifier) const override;

  std::set<std::string, std::less<>> identifiers;
  mutable std::vector<std::string> questions; ///< every identifier asked for, in order
};

/// Holds the names of files, and nothing in them.
class FakeFileManager : public FileManager {
public:
  bool removeItemAtPath(std::string_view path) override;

  std::set<std::string, std::less<>> files;
  std::vector<std::string> removals; ///< every path whose removal was asked for, in order
};

} // namespace wrenvale::platform

#endif
