#include "desktop/linux/settings/DefaultsFile.h"

#include <csignal>
#include <set>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "desktop/linux/plist/PropertyList.h"
#include "desktop/linux/settings/Files.h"
#include "tests/desktop/linux/TemporaryFolder.h"

namespace wrenvale::platform {

namespace {

namespace fs = std::filesystem;
using namespace std::string_view_literals;
using State = DefaultsContent::State;

const std::string kOldList = "<plist><dict><key>k</key><string>old</string></dict></plist>";

// No file of this process can grow beyond so many bytes meanwhile: what a full disk does.
void withFullDisk(rlim_t bytes, const std::function<void()>& what) {
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const rlimit full{bytes, before.rlim_max};
  setrlimit(RLIMIT_FSIZE, &full);
  what();
  setrlimit(RLIMIT_FSIZE, &before);
}

class DefaultsFileTest : public testing::Test {
protected:
  std::optional<DefaultsFile::Merged> merge(const Value::Dictionary& changes) const {
    return file_.merge(changes, std::chrono::steady_clock::now() + std::chrono::seconds(10));
  }
  void put(std::string_view content) const {
    folder_.write("/config/com.example.host/defaults.plist", content);
  }
  bool holds(const Value::Dictionary& expected) const {
    return file_.read().dictionary == Value(expected);
  }

  const TemporaryFolder folder_;
  const std::string parent_ = folder_.path("/config/com.example.host");
  const std::string path_ = parent_ + "/defaults.plist";
  const DefaultsFile file_{path_};
};

TEST_F(DefaultsFileTest, tellsWhatIsInItsPlace) {
  const struct {
    const char* name;
    std::function<void()> make;
    State state;
  } rows[]{
      {"nothing", [] {}, State::absent},
      {"no bytes", [&] { put(""); }, State::whole},
      {"an array", [&] { put("<plist><array/></plist>"); }, State::damaged},
      {"50 MB", [&] { put(""), fs::resize_file(path_, 50'000'000); }, State::damaged},
      {"a pipe", [&] { mkfifo(path_.c_str(), 0600); }, State::blocked},
      {"a link to itself", [&] { fs::create_symlink("defaults.plist", path_); }, State::blocked},
      {"a file for its folder",
       [&] { fs::remove_all(folder_.path("/config")), folder_.write("/config", "a file"); },
       State::blocked}};
  for (const auto& [name, make, state] : rows) {
    fs::create_directories(parent_);
    make();
    const auto content = file_.read();
    EXPECT_EQ(content.state, state) << name;
    EXPECT_EQ(content.identity, file_.identity()) << name;
    EXPECT_EQ(merge({{"new", 1}}).has_value(), state != State::blocked) << name;
    EXPECT_EQ(holds({{"new", 1}}), state != State::blocked) << name;
    EXPECT_EQ(fs::exists(path_ + ".damaged"), state == State::damaged) << name;
    fs::remove_all(folder_.path("/config"));
  }
}

TEST_F(DefaultsFileTest, isMadeForTheUserAloneWhereALinkLeads) {
  fs::create_directories(parent_);
  fs::create_symlink("../../elsewhere/real.plist", path_);
  const auto real = folder_.path("/elsewhere/real.plist");
  ASSERT_TRUE(merge({{"k", 1}}));
  EXPECT_EQ(fs::status(folder_.path("/elsewhere")).permissions(), fs::perms(0700));
  EXPECT_EQ(fs::status(real).permissions(), fs::perms(0600));
  fs::permissions(real, fs::perms(0640));
  ASSERT_TRUE(merge({{"k", 2}}));
  EXPECT_EQ(fs::status(real).permissions(), fs::perms(0640)) << "which the user gave it";
  EXPECT_TRUE(fs::is_symlink(path_) && holds({{"k", 2}}));
}

TEST_F(DefaultsFileTest, looksDifferentAfterEachReplacement) {
  std::set<std::pair<std::uint64_t, std::int64_t>> seen;
  for (int i = 1; i <= 30; ++i) {
    const auto merged = merge({{"k", i}});
    const auto identity = file_.identity();
    ASSERT_TRUE(merged && merged->content.identity == identity) << i;
    EXPECT_TRUE(seen.emplace(identity.inode, identity.modified).second) << i;
  }
  fs::last_write_time(path_, fs::file_time_type::clock::now() + std::chrono::hours(1));
  const auto old = file_.identity();
  ASSERT_TRUE(merge({{"k", 31}}));
  const auto now = file_.identity();
  EXPECT_GT(now.modified, old.modified) << "the clock may have been set back";
  ASSERT_TRUE(merge({{"k", 31}, {"absent", Value()}}));
  EXPECT_EQ(file_.identity(), now) << "nothing to change, nothing written";
}

TEST_F(DefaultsFileTest, keepsEveryByteOfEachDamagedFile) {
  folder_.write("/config/com.example.host/defaults.plist.new", std::string(10000, 'x')); // a crash
  for (const std::string name : {".damaged", ".damaged-2", ".damaged-3"}) {
    put("was " + name);
    ASSERT_TRUE(merge({{"k", 1}}));
    EXPECT_TRUE(holds({{"k", 1}}));
    EXPECT_EQ(contentsOf(path_ + name), "was " + name);
  }
  EXPECT_FALSE(fs::exists(path_ + ".new"));
}

TEST_F(DefaultsFileTest, staysWholeWhenTheDiskIsFull) {
  const std::string large(10000, 'x');
  for (const auto& old : {kOldList, std::string("damaged")})
    for (const rlim_t room : {0, 1, 4096}) {
      put(old);
      withFullDisk(room, [&] { EXPECT_FALSE(merge({{"k", large}})) << room; });
      EXPECT_EQ(contentsOf(path_), old) << room;
      EXPECT_FALSE(fs::exists(path_ + ".new")) << room;
    }
  EXPECT_TRUE(merge({{"k", large}}));
}

TEST_F(DefaultsFileTest, leavesAloneWhatItMayReplaceButNotRead) {
  put(kOldList);
  chmod(folder_.path().c_str(), 0755);
  chmod(parent_.c_str(), 0777);
  chmod(path_.c_str(), 0);
  const auto unreadable = file_.identity();
  const uid_t user = geteuid(); // which may be one that may read everything
  ASSERT_TRUE(user != 0 || seteuid(65534) == 0);
  EXPECT_EQ(file_.read().state, State::blocked);
  EXPECT_FALSE(merge({{"k", "new"}}));
  ASSERT_TRUE(user != 0 || seteuid(user) == 0);
  chmod(path_.c_str(), 0644);
  EXPECT_NE(file_.identity(), unreadable) << "it is worth another look";
  EXPECT_EQ(contentsOf(path_), kOldList);
}

TEST_F(DefaultsFileTest, leavesOutOnlyWhatDoesNotFit) {
  const auto eighths = [](std::size_t count) {
    return Value(std::string(kMaxPropertyListSize / 8 * count, 'x'));
  };
  ASSERT_TRUE(merge({{"there", eighths(4)}}));
  const auto merged = merge({{"large", eighths(2)}, {"larger", eighths(3)}, {"small", 1}});
  ASSERT_TRUE(merged);
  EXPECT_EQ(merged->tooLarge, std::vector<std::string>{"larger"});
  EXPECT_TRUE(holds({{"there", eighths(4)}, {"large", eighths(2)}, {"small", 1}}));
}

TEST_F(DefaultsFileTest, givesUpOnALockThatIsNotReleased) {
  ASSERT_TRUE(merge({{"k", 1}}));
  const FileDescriptor holder(open((path_ + ".lock").c_str(), O_RDWR | O_CLOEXEC));
  ASSERT_EQ(flock(holder.get(), LOCK_EX), 0);
  EXPECT_FALSE(file_.merge({{"k", 2}}, std::chrono::steady_clock::now()));
  EXPECT_TRUE(holds({{"k", 1}}));
}

TEST(DefaultsPath, isBelowTheConfigurationFolder) {
  const auto path = [](const char* configuration, const char* home, std::string_view identifier) {
    return defaultsFilePath(
        identifier, [&](std::string_view name) { return name == "HOME" ? home : configuration; });
  };
  EXPECT_EQ(path("/c", "/h", "com.example.host"), "/c/com.example.host/defaults.plist");
  EXPECT_EQ(path(nullptr, "/h", "x"), "/h/.config/x/defaults.plist");
  EXPECT_EQ(path("relative", "/h", "x"), "/h/.config/x/defaults.plist");
  EXPECT_EQ(path("", "relative", "x"), "");
  for (const auto identifier : {""sv, "."sv, ".."sv, "../x"sv, "x\0y"sv, "x\ny"sv})
    EXPECT_EQ(path("/c", "/h", identifier), "") << identifier;
}

} // namespace

} // namespace wrenvale::platform
