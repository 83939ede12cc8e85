#include "desktop/linux/system/LinuxSystem.h"

#include <fstream>

#include <gmock/gmock.h>
#include <sys/stat.h>

#include "TemporaryFolder.h"

namespace wrenvale::platform {
namespace {

using namespace std::string_literals;
using testing::Optional;

constexpr const char* kFirmware = "/sys/devices/virtual/dmi/id/product_name";
constexpr const char* kDeviceTree = "/proc/device-tree/model";

struct ModelRow {
  const char* what;
  std::optional<std::string> firmware;
  std::optional<std::string> deviceTree;
  std::optional<std::string> model;
};

TEST(Kernel, ModelIsTheFirstNameThatTheFirmwareStates) {
  const ModelRow rows[] = {
      {"neither", std::nullopt, std::nullopt, std::nullopt},
      {"a PC", "Notebook 14, G2\n", std::nullopt, "Notebook 14, G2"},
      {"a board", std::nullopt, "Board 4 Model B\0"s, "Board 4 Model B"},
      {"both", "PC\n", "Board\0"s, "PC"},
      {"blank firmware", " \t\n", "Board\0"s, "Board"},
      {"both empty", "", "\0"s, std::nullopt},
      {"white space around", "\t  PC 1 \r\n\n", std::nullopt, "PC 1"},
      {"far too long", std::string(10'000'000, 'x'), std::nullopt, std::string(256, 'x')},
  };
  for (const auto& row : rows) {
    const TemporaryFolder root;
    if (row.firmware) root.write(kFirmware, *row.firmware);
    if (row.deviceTree) root.write(kDeviceTree, *row.deviceTree);
    EXPECT_EQ(LinuxSystem(root.path()).sysctlbyname("hw.model"), row.model) << row.what;
  }
}

// A read of any of these would wait forever or never end.
TEST(Kernel, WhatIsNoFileIsPassedOver) {
  const TemporaryFolder root;
  root.write(kDeviceTree, "Board");
  const auto firmware = root.prepare(kFirmware);
  const LinuxSystem kernel(root.path());

  ASSERT_EQ(::mkfifo(firmware.c_str(), 0600), 0);
  EXPECT_THAT(kernel.sysctlbyname("hw.model"), Optional("Board"s)) << "pipe";
  std::filesystem::remove(firmware);
  std::filesystem::create_symlink("/dev/zero", firmware);
  EXPECT_THAT(kernel.sysctlbyname("hw.model"), Optional("Board"s)) << "device";
  std::filesystem::remove(firmware);
  std::filesystem::create_directory(firmware);
  EXPECT_THAT(kernel.sysctlbyname("hw.model"), Optional("Board"s)) << "folder";
}

TEST(Kernel, ReleaseIsThatOfTheRunningSystem) {
  std::string release;
  std::getline(std::ifstream("/proc/sys/kernel/osrelease"), release);
  if (release.empty()) GTEST_SKIP() << "the system does not show its release elsewhere";
  EXPECT_THAT(LinuxSystem().sysctlbyname("kern.osrelease"), Optional(release));
  EXPECT_EQ(LinuxSystem().sysctlbyname("kern.ostype"), std::nullopt);
}

} // namespace
} // namespace wrenvale::platform
