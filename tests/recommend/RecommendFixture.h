// Recommendations for "host", build 120, over an in-memory system; documents are written
// as JSON text.

#ifndef WRENVALE_TESTS_RECOMMEND_RECOMMENDFIXTURE_H
#define WRENVALE_TESTS_RECOMMEND_RECOMMENDFIXTURE_H

#include <string>

#include <gtest/gtest.h>

#include "desktop/net/json/JSONReader.h"
#include "platform/fake/FakeSystem.h"
#include "recommend/Context.h"

namespace wrenvale::recommend {

inline Value json(std::string_view text) {
  const auto document = platform::JSONReader().JSONObjectWithData(std::string(text));
  EXPECT_TRUE(document) << text;
  return document.value_or(Value());
}

class RecommendTest : public testing::Test {
protected:
  Context context() {
    return {.iconBase = "http://vendor.example/store/images/",
            .host = {.bundleID = "host", .bundleVersion = 120},
            .isInstalled =
                [this](std::string_view identifier) {
                  return applications.URLForApplicationWithBundleIdentifier(identifier).has_value();
                },
            .purchaseRecord = {},
            .purchases = {},
            .random = {}};
  }

  platform::FakeInstalledApplications applications;
};

} // namespace wrenvale::recommend

#endif
