#include "desktop/qt/app/QtQueues.h"

#include <stdexcept>
#include <vector>

#include <gmock/gmock.h>

#include <QCoreApplication>

namespace wrenvale::platform {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

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
  EXPECT_THAT(ran, IsEmpty());
  queue.open();
  add(2);
  queue.async([&] { ran.push_back(3); });
  EXPECT_THAT(ran, IsEmpty()) << "nothing runs within async()";
  while (ran.size() < 4)
    QCoreApplication::processEvents();
  EXPECT_THAT(ran, ElementsAre(1, 2, 3, 4));
  add(5);
  queue.close();
  add(6);
  QCoreApplication::processEvents();
  EXPECT_THAT(ran, ElementsAre(1, 2, 3, 4));
}

} // namespace
} // namespace wrenvale::platform
