#include "recommend/KVXAppRecommendation.h"

#include <algorithm>
#include <thread>

#include <gtest/gtest.h>

#include "platform/fake/FakeSystem.h"

namespace wrenvale {
namespace {

TEST(Recommendation, KeepsItsTextsApart) {
  KVXAppRecommendation record;
  const std::string group("g\0p", 3);
  record.setName("name");
  record.setLink("");
  record.setGroup(group);
  record.setName("another name");
  EXPECT_EQ(record.name(), "another name");
  EXPECT_EQ(record.link(), "");
  EXPECT_EQ(record.description(), "another name/" + group + "((null)) - points:0 - alert:(null)");
  record.setLink("link");
  record.setName(std::nullopt);
  EXPECT_EQ(record.name(), std::nullopt);
  EXPECT_EQ(record.link(), "link");
  EXPECT_EQ(record.group(), group);
}

TEST(Recommendation, RemovesItsMediaFileWhenItGoes) {
  struct : platform::FakeSystem {
    bool removeItemAtPath(std::string_view) override { throw std::bad_alloc(); }
  } throwing;
  platform::FakeSystem files;
  { KVXAppRecommendation(&files).setMediaPath("/media/a"); }
  { KVXAppRecommendation(&files).setMediaURL("/media/b"); }
  { KVXAppRecommendation(nullptr).setMediaPath("/media/b"); }
  { KVXAppRecommendation(&throwing).setMediaPath("/media/b"); }
  EXPECT_EQ(files.removals, std::vector<std::string>{"/media/a"});
}

TEST(Recommendation, IsReadWhileItIsWritten) {
  KVXAppRecommendation record;
  const std::string texts[] = {std::string(100, 'a'), std::string(2000, 'b')};
  record.setName(texts[0]);
  std::thread writer([&] {
    for (int i = 0; i < 2000; ++i) {
      record.setName(texts[i % 2]);
      record.setIconImage(std::make_shared<int>(i));
    }
  });
  for (int i = 0; i < 2000; ++i) {
    EXPECT_EQ(std::count(std::begin(texts), std::end(texts), record.name()), 1);
    (void)record.iconImage();
  }
  writer.join();
}

} // namespace
} // namespace wrenvale
