// The stand-ins keep the contracts of the interfaces that they stand in for.

#include "platform/fake/FakePlatform.h"

#include <gtest/gtest.h>

namespace wrenvale::platform {
namespace {

TEST(FakeQueues, RunInOrderAndNeverWithinTheCall) {
  FakeQueues queues;
  std::string order;
  queues.mainQueue().async([&] {
    order += 'a';
    queues.mainQueue().async([&] { order += 'c'; });
    order += 'b';
  });
  EXPECT_EQ(order, "");
  EXPECT_TRUE(queues.main.step());
  EXPECT_EQ(order, "ab");
  EXPECT_EQ(queues.main.run(), 1U);
  EXPECT_FALSE(queues.main.step());
  EXPECT_EQ(order, "abc");
}

TEST(FakeQueues, AThrowingTaskIsDropped) {
  FakeQueue queue;
  int ran = 0;
  queue.async([] { throw std::runtime_error("task"); });
  queue.async([&] { ++ran; });
  EXPECT_EQ(queue.run(), 2U);
  EXPECT_EQ(ran, 1);
}

TEST(FakeUserDefaults, NullRemovesAndObserversAreTold) {
  FakeUserDefaults defaults;
  int calls = 0;
  UserDefaults::ObserverID id = 0;
  id = defaults.addObserver("k", [&] {
    ++calls;
    defaults.removeObserver(id); // from inside its own call
  });
  defaults.setObject(1, "other");
  EXPECT_EQ(calls, 0);
  defaults.setObject(1, "k");
  defaults.setObject({}, "k");
  EXPECT_EQ(calls, 1);
  EXPECT_FALSE(defaults.values.contains("k"));
}

TEST(FakeUserDefaults, OnlySynchronizedValuesSurvive) {
  FakeUserDefaults defaults;
  defaults.setObject(1, "k");
  EXPECT_TRUE(defaults.durable().empty());
  defaults.diskFull = true;
  EXPECT_FALSE(defaults.synchronize());
  EXPECT_TRUE(defaults.durable().empty());
  defaults.diskFull = false;
  EXPECT_TRUE(defaults.synchronize());
  EXPECT_EQ(defaults.durable().at("k"), Value(1));
}

TEST(FakeRandom, HandsOutWhatTheTestFixed) {
  FakeRandom random;
  random.numbers = {7, 8};
  EXPECT_EQ(random.arc4random(), 7U);
  EXPECT_EQ(random.arc4random(), 8U);
  int odd = 0;
  for (int i = 0; i < 1000; ++i)
    odd += static_cast<int>(random.arc4random() & 1U);
  EXPECT_GT(odd, 400);
  EXPECT_LT(odd, 600);
}

TEST(FakeApplication, LaunchesOnce) {
  FakeApplication application;
  int launches = 0;
  application.observeDidFinishLaunching([&] { ++launches; });
  application.finishLaunching();
  application.finishLaunching();
  EXPECT_EQ(launches, 1);
}

} // namespace
} // namespace wrenvale::platform
