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

  void serve(const std::string& name, Value document) {
    fake.urlLoading.answers["http://vendor.example/store/" + name + ".json"] = name;
    fake.json.documents[name] = std::move(document);
  }

  /// The document that builds up to this one ask for: "_F" at their first run.
  void serveRecommendations(const std::string& variant, Value::Array apps, int build = 120) {
    const Value::Dictionary host{{"bundle_id", "com.example.host"}, {"build_number", build}};
    const Value::Dictionary options{{"stable_versions", Value::Array{host}}};
    serve("recommender_US_en" + variant,
          Value::Dictionary{{"options", options}, {"apps", std::move(apps)}});
  }

  /// A document that asks for the update window.
  void serveReset() {
    serve("reset_US_en",
          Value::Array{Value::Dictionary{
              {"bundle_id", "com.example.host"}, {"reset_number", 4}, {"max_build_number", 200}}});
  }

  Value stored(std::string_view key) const { return fake.userDefaults.objectForKey(key); }

  platform::FakePlatform fake;
  std::unique_ptr<Service> service;
};

} // namespace wrenvale

#endif
