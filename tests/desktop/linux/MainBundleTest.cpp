#include "desktop/linux/system/LinuxMainBundle.h"

#include <gtest/gtest.h>

#include <wrenvale/HostInfo.h>

#include "desktop/linux/system/HostInfo.h"
#include "platform/Platform.h"

namespace {

constexpr char kInfo[] = R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0">
<dict>
  <key>CFBundleName</key><string>Sketch &amp; Söhne</string>
  <key>CFBundleVersion</key><integer>1204</integer>
  <key>Appstore ID</key><real>1.5</real>
  <key>Odd</key><array><true/><dict><key>a</key><string>b</string></dict></array>
</dict>
</plist>
)";
constexpr unsigned long kInfoSize = sizeof kInfo - 1;

} // namespace

// Makes this program a host, as wrenvale_host() would.
extern "C" {
extern const WrenvaleHostInfo wrenvale_host_info;
const WrenvaleHostInfo wrenvale_host_info = {reinterpret_cast<const unsigned char*>(kInfo),
                                             &kInfoSize, nullptr};
}

namespace wrenvale::platform {
namespace {

// Constructed before main(), where the dictionary is readable already.
const Value kNameBeforeMain =
    builtInSystemParts().mainBundle.objectForInfoDictionaryKey("CFBundleName");

TEST(MainBundle, HostsInfoDictionaryIsReadableBeforeMain) {
  EXPECT_EQ(kNameBeforeMain, Value("Sketch & Söhne"));
  EXPECT_EQ(&builtInSystemParts(), &builtInSystemParts());
}

TEST(MainBundle, WithoutADictionaryEveryKeyIsNull) {
  const std::string_view rows[] = {
      "",
      "garbage",
      std::string_view(kInfo, kInfoSize / 2),
      "<?xml version=\"1.0\"?><plist version=\"1.0\"><array><string>x</string></array></plist>",
  };
  for (const auto row : rows)
    EXPECT_TRUE(LinuxMainBundle(row).objectForInfoDictionaryKey("CFBundleName").isNull()) << row;
}

} // namespace
} // namespace wrenvale::platform
