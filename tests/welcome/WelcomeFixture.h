// A recommender window on its own: a controller over the in-memory platform, with a service
// beside it that knows nothing of it.

#ifndef WRENVALE_TESTS_WELCOME_WELCOMEFIXTURE_H
#define WRENVALE_TESTS_WELCOME_WELCOMEFIXTURE_H

#include <memory>
#include <string>
#include <utility>

#include "core/Endpoints.h"
#include "tests/core/ServiceFixture.h"
#include "welcome/KVXRecommenderWindowController.h"

namespace wrenvale {

struct StubRecommendation final : Recommendation {
  Text link() const override { return itsLink; }
  Text alertText() const override { return itsAlertText; }
  Text alertButtonName() const override { return itsAlertButtonName; }
  Text alertLink() const override { return itsAlertLink; }
  Dictionary dictionaryRepresentation() const override { return {{"name", itsName}}; }

  std::string itsName;
  Text itsAlertText, itsAlertButtonName, itsAlertLink, itsLink;
};

inline std::shared_ptr<const Recommendation>
recommendation(std::string name, Recommendation::Text alertText = {},
               Recommendation::Text alertButtonName = {}, Recommendation::Text alertLink = {},
               Recommendation::Text link = {}) {
  auto stub = std::make_shared<StubRecommendation>();
  stub->itsName = std::move(name);
  stub->itsAlertText = std::move(alertText);
  stub->itsAlertButtonName = std::move(alertButtonName);
  stub->itsAlertLink = std::move(alertLink);
  stub->itsLink = std::move(link);
  return stub;
}

class WelcomeTest : public ServiceTest {
protected:
  /// Lets go of the controller when it finishes.
  struct Delegate final : KVXRecommenderWindowControllerDelegate {
    void kvxRecommenderWindowControllerDidFinish(KVXRecommenderWindowController& ended) override {
      ++finished;
      ended.cleanup();
      controller = nullptr;
    }

    int finished = 0;
    std::shared_ptr<KVXRecommenderWindowController> controller;
  };

  /// Makes a controller in welcome mode whose page runs its scripts.
  platform::FakeRecommenderWindow& open() {
    start();
    controller =
        std::make_shared<KVXRecommenderWindowController>(*service, fake.platform, endpoints);
    controller->setDelegate(delegate);
    controller->setDisplayAlerts(true);
    EXPECT_TRUE(controller->loadWindow());
    window().startPage();
    return window();
  }

  platform::FakeRecommenderWindow& window() { return fake.windows.recommenderWindow(); }

  Endpoints endpoints{BuildConfiguration{.vendorBase = "http://vendor.example",
                                         .storeHost = {},
                                         .publicKey = {},
                                         .vendorSiteName = {}}};
  const std::shared_ptr<Delegate> delegate = std::make_shared<Delegate>();
  std::shared_ptr<KVXRecommenderWindowController>& controller = delegate->controller;
};

} // namespace wrenvale

#endif
