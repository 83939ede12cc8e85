#include "desktop/qt/app/QtQueues.h"

#include <atomic>
#include <future>
#include <memory>
#include <numeric>
#include <semaphore>
#include <stdexcept>
#include <vector>

#include <gmock/gmock.h>

#include <QCoreApplication>

namespace wrenvale::platform {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

TEST(MainQueueTest, RunsInOrderBetweenOpeningAndClosing) {
  MainQueue queue;
  std::vector<int> ran;
  const auto add = [&](int number) { queue.async([&ran, number] { ran.push_back(number); }); };
  add(1);
  queue.async([&] {
    add(4);
    throw std::runtime_error("dropped");
  });
  QCoreApplication::processEvents();
  EXPECT_THAT(ran, ElementsAre());
  queue.open();
  add(2);
  queue.async([&] { ran.push_back(3); });
  EXPECT_THAT(ran, ElementsAre()) << "nothing runs within async()";
  while (ran.size() < 4)
    QCoreApplication::processEvents();
  EXPECT_THAT(ran, ElementsAre(1, 2, 3, 4));
  add(5);
  queue.close();
  add(6);
  QCoreApplication::processEvents();
  EXPECT_THAT(ran, ElementsAre(1, 2, 3, 4));
}

class BackgroundQueueTest : public testing::Test {
protected:
  // A task that says when it has begun, and then waits to be let go.
  Queue::Task held() {
    return [this] {
      begun_.release();
      EXPECT_TRUE(gate_.try_acquire_for(10s));
      ++ran_;
    };
  }
  bool begins(int count) {
    for (; count > 0; --count)
      if (!begun_.try_acquire_for(10s)) return false;
    return true;
  }

  // As in a process: never destroyed, but over before the test is.
  struct End {
    void operator()(BackgroundQueue* queue) const { queue->end(), queue->wait(10s); }
  };
  static std::unique_ptr<BackgroundQueue, End> queueOf(int width) {
    return std::unique_ptr<BackgroundQueue, End>(new BackgroundQueue(width));
  }

  std::counting_semaphore<> begun_{0}, gate_{0};
  std::atomic<int> ran_ = 0;
};

TEST_F(BackgroundQueueTest, RunsAsManyAtOnceAsItIsWide) {
  for (const int width : {1, 3}) {
    const auto queue = queueOf(width);
    ran_ = 0;
    for (int i = 0; i < 10; ++i)
      queue->async(held());
    EXPECT_TRUE(begins(width));
    EXPECT_FALSE(begun_.try_acquire_for(20ms)) << "more than " << width;
    gate_.release(10);
    EXPECT_TRUE(begins(10 - width));
  }
}

TEST_F(BackgroundQueueTest, OfWidthOneKeepsItsOrderPastAFailure) {
  std::vector<int> ran;
  std::promise<void> done;
  const auto queue = queueOf(1);
  for (int i = 0; i < 100; ++i)
    queue->async([&ran, i] {
      ran.push_back(i);
      if (i % 2) throw std::runtime_error("dropped");
    });
  queue->async([&] { done.set_value(); });
  ASSERT_EQ(done.get_future().wait_for(10s), std::future_status::ready);
  std::vector<int> expected(100);
  std::iota(expected.begin(), expected.end(), 0);
  EXPECT_EQ(ran, expected);
}

TEST_F(BackgroundQueueTest, DropsWhatComesTooFast) {
  const auto queue = queueOf(1);
  queue->async(held());
  ASSERT_TRUE(begins(1));
  const auto most = BackgroundQueue::kMostWaiting;
  std::size_t counted = 0;
  std::promise<void> full, over;
  for (std::size_t i = 0; i < 3 * most; ++i)
    queue->async([&] {
      if (++counted == most) full.set_value();
    });
  gate_.release();
  ASSERT_EQ(full.get_future().wait_for(10s), std::future_status::ready);
  queue->async([&] { over.set_value(); });
  ASSERT_EQ(over.get_future().wait_for(10s), std::future_status::ready);
  EXPECT_EQ(counted, most);
}

TEST_F(BackgroundQueueTest, BeginsNothingOnceItEnds) {
  const auto queue = queueOf(1);
  queue->async(held());
  ASSERT_TRUE(begins(1));
  queue->async([this] { ran_ = 100; });
  queue->end();
  queue->async([this] { ran_ = 1000; });
  gate_.release();
  queue->wait(10s);
  EXPECT_EQ(ran_, 1);
}

} // namespace
} // namespace wrenvale::platform
