// A service over an in-memory platform, with a host that says who it is.

#ifndef WRENVALE_TESTS_CORE_SERVICEFIXTURE_H
#define WRENVALE_TESTS_CORE_SERVICEFIXTURE_H

#include <memory>

#include <gtest/gtest.h>

#include "core/PersistedKeys.h"
#include "core/Service.h"
#include "platform/fake/FakePlatform.h"

namespace wrenvale {

class ServiceTest : public testing::Test {
protected:
  ServiceTest() {
    fake.info = {{"CFBundleIdentifier", "com.example.host"},
                 {"CFBundleVersion", "120"},
                 {"CFBundleName", "Photo Tool"},
                 {"Appstore ID", 123456789}};
  }

  /// Starts a process of the host: a new service over the same world.
  Service& start() {
    service = std::make_unique<Service>(fake.platform, configuration());
    return *service;
  }

  static BuildConfiguration configuration() {
    return {.vendorBase = "http://vendor.example",
            .storeHost = "store.example",
            .publicKey = "the key",
            .vendorSiteName = "vendor.example"};
  }

  Value stored(std::string_view key) const { return fake.userDefaults.objectForKey(key); }

  platform::FakePlatform fake;
  std::unique_ptr<Service> service;
};

} // namespace wrenvale

#endif
