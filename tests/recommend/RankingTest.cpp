#include "recommend/Ranking.h"

#include <algorithm>
#include <set>

#include "recommend/KVXAppRecommendation.h"
#include "tests/recommend/RecommendFixture.h"

namespace wrenvale::recommend {
namespace {

std::shared_ptr<KVXAppRecommendation> record(std::int64_t points, std::string name = {},
                                             std::optional<std::string> group = {}) {
  auto result = std::make_shared<KVXAppRecommendation>();
  result->setPoints(points);
  result->setName(name);
  result->setGroup(group);
  return result;
}

std::string names(const Recommendations& list) {
  std::string result;
  for (const auto& record : list)
    result += record->name().value_or("?");
  return result;
}

class Ranking : public testing::Test {
protected:
  platform::FakeSystem system;
  std::size_t tosses = 0;
  const std::function<std::uint32_t()> random = [this] { return ++tosses, system.arc4random(); };
};

TEST_F(Ranking, OrdersByPointsWhateverTheCoinSays) {
  for (std::size_t size = 0; size < 200; ++size) {
    Recommendations list;
    for (std::size_t i = 0; i < size; ++i)
      list.push_back(record(static_cast<std::int64_t>(random() % 20) - 10));
    const std::set before(list.begin(), list.end());
    sortByPoints(list, random);
    EXPECT_TRUE(std::is_sorted(list.begin(), list.end(), [](const auto& a, const auto& b) {
      return a->points() > b->points();
    })) << size;
    EXPECT_EQ((std::set(list.begin(), list.end())), before) << size;
  }
}

TEST_F(Ranking, KeepsTossingHoweverManyTiesThereAre) {
  for (const std::uint32_t number : {0U, 1U, 0xFFFFFFFEU, 0xFFFFFFFFU}) {
    tosses = 0;
    system.numbers.assign(20000, number);
    Recommendations list(1024);
    std::generate(list.begin(), list.end(), [] { return record(0); });
    const auto before = list;
    sortByPoints(list, random);
    EXPECT_EQ(tosses, 5120U); // one for each step of each merge: none was answered "equal"
    EXPECT_TRUE(number & 1 ? list == before
                           : std::equal(list.begin(), list.end(), before.rbegin(), before.rend()));
  }
}

TEST_F(Ranking, KeepsTheBestOfEachGroup) {
  const Recommendations sorted = {record(9, "a", "x"),  record(8, "b"),      record(7, "c", "X"),
                                  record(6, "d", "x"),  record(5, "e"),      record(4, "f", ""),
                                  record(3, "g", "x "), record(2, "h", "X"), record(1, "i", "")};
  EXPECT_EQ(names(onePerGroup(sorted)), "abcefg");
}

} // namespace
} // namespace wrenvale::recommend
