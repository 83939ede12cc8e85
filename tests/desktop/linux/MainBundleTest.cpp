#include "desktop/linux/system/HostInfo.h"

#include <gtest/gtest.h>

#include <wrenvale/HostInfo.h>

#include "platform/Platform.h"

namespace {

constexpr char kInfo[] = R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0">
<dict>
  <key>CFBundleName</key><string>Sketch &amp; Söhne</string>
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
const Value kNameBeforeMain = builtInSystemParts().info.at("CFBundleName");

TEST(MainBundle, HostsInfoDictionaryIsReadableBeforeMain) {
  EXPECT_EQ(kNameBeforeMain, Value("Sketch & Söhne"));
}

TEST(MainBundle, WithoutADictionaryItIsEmpty) {
  const std::string_view rows[] = {
      "",
      "garbage",
      std::string_view(kInfo, kInfoSize / 2),
      "<?xml version=\"1.0\"?><plist version=\"1.0\"><array><string>x</string></array></plist>",
  };
  for (const auto row : rows)
    EXPECT_TRUE(infoFromPropertyList(row).empty()) << row;
}

} // namespace
} // namespace wrenvale::platform
