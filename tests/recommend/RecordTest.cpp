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
  const KVXAppRecommendation::Dictionary empty = {
      {"name", ""}, {"bundleID", ""}, {"iconURL", ""}, {"points", 0},
      {"link", ""}, {"descr", ""},    {"linkName", ""}};
  EXPECT_EQ(record.dictionaryRepresentation(), empty);
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
  record.setName("");
  EXPECT_EQ(record.name(), "");
  EXPECT_EQ(record.link(), "link");
}

TEST(Recommendation, RemovesItsMediaFileWhenItGoes) {
  class ThrowingFiles : public platform::FileManager {
    bool removeItemAtPath(std::string_view) override { throw std::bad_alloc(); }
  } throwing;
  platform::FakeFileManager files;
  files.files = {"/media/a", "/media/b"};
  { KVXAppRecommendation(&files).setMediaPath("/media/a"); }
  { KVXAppRecommendation(&files).setMediaPath("/media/missing"); }
  { KVXAppRecommendation(&files).setMediaURL("/media/b"); }
  { KVXAppRecommendation(nullptr).setMediaPath("/media/b"); }
  { KVXAppRecommendation(&throwing).setMediaPath("/media/b"); }
  EXPECT_EQ(files.files, (std::set<std::string, std::less<>>{"/media/b"}));
  EXPECT_EQ(files.removals, (std::vector<std::string>{"/media/a", "/media/missing"}));
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
