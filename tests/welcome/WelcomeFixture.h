// A recommender window on its own: a controller over the in-memory platform, with a service
// beside it that knows nothing of it.

#ifndef WRENVALE_TESTS_WELCOME_WELCOMEFIXTURE_H
#define WRENVALE_TESTS_WELCOME_WELCOMEFIXTURE_H

#include <memory>

#include "core/Endpoints.h"
#include "recommend/KVXAppRecommendation.h"
#include "tests/core/ServiceFixture.h"
#include "welcome/KVXRecommenderWindowController.h"

namespace wrenvale {

inline std::shared_ptr<const Recommendation>
recommendation(std::string_view name, Recommendation::Text alertText = {},
               Recommendation::Text alertButtonName = {}, Recommendation::Text alertLink = {},
               Recommendation::Text link = {}) {
  auto record = std::make_shared<KVXAppRecommendation>();
  record->setName(name);
  record->setAlertText(alertText);
  record->setAlertButtonName(alertButtonName);
  record->setAlertLink(alertLink);
  record->setLink(link);
  return record;
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

  Endpoints endpoints{configuration()};
  const std::shared_ptr<Delegate> delegate = std::make_shared<Delegate>();
  std::shared_ptr<KVXRecommenderWindowController>& controller = delegate->controller;
};

} // namespace wrenvale

#endif
