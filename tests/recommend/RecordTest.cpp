#include "recommend/KVXAppRecommendation.h"

#include <thread>

#include <gtest/gtest.h>

#include "platform/fake/FakeSystem.h"

namespace wrenvale {
namespace {

TEST(Recommendation, DescribesItself) {
  KVXAppRecommendation record;
  EXPECT_EQ(record.description(), "(null)((null)) - points:0 - alert:(null)");
  record.setName("Alpha");
  record.setBundleID("com.example.alpha");
  record.setPoints(-150);
  EXPECT_EQ(record.description(), "Alpha(com.example.alpha) - points:-150 - alert:(null)");
  record.setGroup("photo");
  record.setAlertText("Hi");
  EXPECT_EQ(record.description(), "Alpha/photo(com.example.alpha) - points:-150 - alert:Hi");
}

TEST(Recommendation, HandsSevenEntriesToThePage) {
  KVXAppRecommendation record;
  EXPECT_EQ(record.dictionaryRepresentation().back().second, Value("")) << "never null";
  record.setName("n");
  record.setBundleID("b");
  record.setIconURL("i");
  record.setPoints(-3);
  record.setLink("l");
  record.setDescr("d");
  record.setLinkName("ln");
  const KVXAppRecommendation::Dictionary filled = {
      {"name", "n"}, {"bundleID", "b"}, {"iconURL", "i"},  {"points", -3},
      {"link", "l"}, {"descr", "d"},    {"linkName", "ln"}};
  EXPECT_EQ(record.dictionaryRepresentation(), filled);
}

TEST(Recommendation, KeepsItsTextsApart) {
  KVXAppRecommendation record;
  record.setName("name");
  record.setLink("");
  record.setDescr("description");
  record.setGroup("group");
  record.setName("another name");
  record.setDescr(std::nullopt);
  record.setLink("link");
  record.setGroup(std::string("g\0p", 3));
  EXPECT_EQ(record.name(), "another name");
  EXPECT_EQ(record.link(), "link");
  EXPECT_EQ(record.descr(), std::nullopt);
  EXPECT_EQ(record.group(), std::string("g\0p", 3));
}

TEST(Recommendation, RemovesItsMediaFileWhenItGoes) {
  struct : platform::FakeSystem {
    bool removeItemAtPath(std::string_view) override { throw std::bad_alloc(); }
  } throwing;
  platform::FakeSystem system;
  { KVXAppRecommendation(&system).setMediaPath("/media/a"); }
  { KVXAppRecommendation(&system).setMediaURL("/media/b"); }
  { KVXAppRecommendation(nullptr).setMediaPath("/media/b"); }
  { KVXAppRecommendation(&throwing).setMediaPath("/media/b"); }
  EXPECT_EQ(system.removals, std::vector<std::string>{"/media/a"});
}

TEST(Recommendation, IsReadWhileItIsWritten) {
  KVXAppRecommendation record;
  const std::string texts[] = {std::string(100, 'a'), std::string(2000, 'b')};
  record.setName(texts[0]);
  std::thread writer([&] {
    for (int i = 0; i < 2000; ++i) {
      record.setName(texts[i % 2]);
      record.setPoints(i % 2);
      record.setIconImage(std::make_shared<int>(i));
    }
  });
  for (int i = 0; i < 2000; ++i) {
    const auto name = record.name();
    ASSERT_TRUE(name == texts[0] || name == texts[1]);
    ASSERT_LE(record.points(), 1);
    (void)record.iconImage();
  }
  writer.join();
}

} // namespace
} // namespace wrenvale
