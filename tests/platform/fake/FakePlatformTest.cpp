// The stand-ins keep the contracts of the interfaces that they stand in for.

#include "platform/fake/FakePlatform.h"

#include <gtest/gtest.h>

namespace wrenvale::platform {
namespace {

TEST(FakeQueues, RunInOrderAndNeverWithinTheCall) {
  FakeQueues queues;
  std::string order;
  queues.main.async([&] {
    order += 'a';
    queues.main.async([&] { order += 'c'; });
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

TEST(FakeQueues, DropWhatIsTooMuchOrTooLate) {
  FakeQueues queues;
  for (std::size_t i = 0; i <= Queue::kMostWaiting; ++i)
    queues.main.async([] {});
  EXPECT_EQ(queues.main.size(), Queue::kMostWaiting);
  queues.endProcess();
  queues.main.async([] {});
  EXPECT_EQ(queues.main.size(), 0U);
}

TEST(FakeApplication, OpensNoMoreThanAPersonDoes) {
  FakePlatform fake;
  std::string opened;
  for (const int milliseconds : {0, 0, 500, 500, 0, 0, 999, 1}) {
    fake.system.advance(std::chrono::milliseconds(milliseconds));
    opened += fake.application.openURL("http://vendor.example") ? 'o' : '.';
  }
  EXPECT_EQ(opened, "ooooo..o");
}

TEST(FakeUserDefaults, TellOfChangesAndKeepWhatIsSynchronized) {
  FakeUserDefaults defaults;
  int calls = 0;
  defaults.addObserver("k", [&calls] { ++calls; });
  for (const int value : {1, 1})
    defaults.setObject(value, "k");
  EXPECT_EQ(calls, 1) << "an equal value is no change";
  EXPECT_TRUE(defaults.durable().empty());
  defaults.diskFull = true;
  EXPECT_FALSE(defaults.synchronize());
  EXPECT_TRUE(defaults.durable().empty());
  defaults.diskFull = false;
  EXPECT_TRUE(defaults.synchronize());
  EXPECT_EQ(defaults.durable().at("k"), Value(1));
}

} // namespace
} // namespace wrenvale::platform
