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
#include "desktop/linux/settings/DefaultsPath.h"
#include "desktop/linux/settings/FileDescriptor.h"
#include "tests/desktop/linux/TemporaryFolder.h"

namespace wrenvale::platform {

namespace {

namespace fs = std::filesystem;
using State = DefaultsContent::State;

FileLock::Deadline soon() {
  return std::chrono::steady_clock::now() + std::chrono::seconds(10);
}

std::string listOf(const Value::Dictionary& items) {
  return *propertyListFromValue(Value(items));
}

mode_t modeOf(const std::string& path) {
  struct stat status = {};
  return stat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
}

std::set<std::string> namesIn(const std::string& folder) {
  std::set<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder))
    names.insert(entry.path().filename());
  return names;
}

// While one exists, no file of this process can grow beyond some bytes: what a full disk does.
class FullDisk {
public:
  explicit FullDisk(rlim_t bytes)
      : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit full{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &full);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

private:
  rlimit before_{};
  sighandler_t handler_;
};

// While one exists, permissions hold for this process even when the superuser runs it.
class Unprivileged {
public:
  Unprivileged() {
    if (user_ == 0) changed_ = seteuid(65534) == 0;
  }
  ~Unprivileged() {
    if (changed_) changed_ = seteuid(user_) != 0;
  }

private:
  const uid_t user_ = geteuid();
  bool changed_ = false;
};

class DefaultsFileTest : public testing::Test {
protected:
  std::optional<DefaultsFile::Merged> merge(const Value::Dictionary& changes) {
    return file_.merge(changes, soon());
  }

  const TemporaryFolder folder_;
  const std::string path_ = folder_.path("/config/com.example.host/defaults.plist");
  const DefaultsFile file_{path_};
};

TEST_F(DefaultsFileTest, tellsWhatIsInItsPlace) {
  struct Row {
    const char* name;
    std::function<void()> put;
    State state;
  };
  const auto write = [&](std::string_view content) {
    return [this, content = std::string(content)] {
      folder_.write("/config/com.example.host/defaults.plist", content);
    };
  };
  const Row rows[]{
      {"nothing", [] {}, State::absent},
      {"no bytes", write(""), State::whole},
      {"a dictionary", write(listOf({{"k", 1}})), State::whole},
      {"an XML dictionary", write("<plist><dict/></plist>"), State::whole},
      {"an array", write("<plist><array/></plist>"), State::damaged},
      {"garbage", write("garbage"), State::damaged},
      {"half a list", write(listOf({{"k", 1}}).substr(0, 30)), State::damaged},
      {"50 MB", [&] { write("")(), fs::resize_file(path_, 50'000'000); }, State::damaged},
      {"a folder", [&] { fs::create_directory(path_); }, State::blocked},
      {"a pipe", [&] { mkfifo(path_.c_str(), 0600); }, State::blocked},
      {"a device", [&] { fs::create_symlink("/dev/zero", path_); }, State::blocked},
      {"a link to itself", [&] { fs::create_symlink("defaults.plist", path_); }, State::blocked},
      {"a link to nothing", [&] { fs::create_symlink("nothing", path_); }, State::absent}};
  for (const auto& [name, put, state] : rows) {
    fs::create_directories(fs::path(path_).parent_path());
    put();
    const auto content = file_.read();
    EXPECT_EQ(content.state, state) << name;
    EXPECT_EQ(content.identity, file_.identity()) << name;
    const auto merged = merge({{"new", 1}});
    EXPECT_EQ(merged.has_value(), state != State::blocked) << name;
    if (merged) {
      EXPECT_EQ(file_.read().dictionary.find("new"), Value(1)) << name;
    }
    const bool isDamagedKept = fs::exists(path_ + ".damaged");
    EXPECT_EQ(isDamagedKept, state == State::damaged) << name;
    fs::remove_all(folder_.path("/config"));
  }
}

TEST_F(DefaultsFileTest, isMadeForTheUserAloneAndKeepsItsPermissions) {
  ASSERT_TRUE(merge({{"a", 1}}));
  EXPECT_EQ(modeOf(folder_.path("/config")), 0700U);
  EXPECT_EQ(modeOf(folder_.path("/config/com.example.host")), 0700U);
  EXPECT_EQ(modeOf(path_), 0600U);
  ASSERT_EQ(chmod(path_.c_str(), 0640), 0);
  ASSERT_TRUE(merge({{"b", 2}}));
  EXPECT_EQ(modeOf(path_), 0640U);
  EXPECT_EQ(namesIn(folder_.path("/config/com.example.host")),
            (std::set<std::string>{"defaults.plist", "defaults.plist.lock"}));
}

TEST_F(DefaultsFileTest, mergesByKeyWithWhatOthersWrote) {
  folder_.write("/config/com.example.host/defaults.plist",
                listOf({{"theirs", Value::Array{1, "x"}}, {"changed", 1}, {"removed", 1}}));
  const auto merged = merge({{"changed", 2}, {"removed", Value()}, {"mine", true}});
  ASSERT_TRUE(merged);
  const Value expected =
      Value::Dictionary{{"theirs", Value::Array{1, "x"}}, {"changed", 2}, {"mine", true}};
  EXPECT_TRUE(merged->content.dictionary == expected);
  EXPECT_TRUE(file_.read().dictionary == expected);
  EXPECT_EQ(merged->content.identity, file_.identity());
}

TEST_F(DefaultsFileTest, looksDifferentAfterEachReplacement) {
  ASSERT_TRUE(merge({{"k", 0}}));
  std::set<std::pair<std::uint64_t, std::int64_t>> seen;
  for (int i = 1; i <= 30; ++i) {
    ASSERT_TRUE(merge({{"k", i}}));
    const auto identity = file_.identity();
    EXPECT_TRUE(seen.emplace(identity.inode, identity.modified).second) << i;
  }
  fs::last_write_time(path_, fs::file_time_type::clock::now() + std::chrono::hours(1));
  const auto old = file_.identity();
  ASSERT_TRUE(merge({{"k", 31}}));
  EXPECT_GT(file_.identity().modified, old.modified) << "the clock may have been set back";

  const auto before = file_.identity();
  ASSERT_TRUE(merge({{"k", 31}, {"absent", Value()}}));
  EXPECT_EQ(file_.identity(), before) << "nothing to change, nothing written";
}

TEST_F(DefaultsFileTest, keepsEveryByteOfEachDamagedFile) {
  const auto put = [&](std::string_view content) {
    folder_.write("/config/com.example.host/defaults.plist", content);
    ASSERT_TRUE(merge({{"k", 1}}));
    EXPECT_TRUE(file_.read().dictionary == Value(Value::Dictionary{{"k", 1}}));
  };
  put("first");
  put("second");
  put("third");
  EXPECT_EQ(contentsOf(path_ + ".damaged"), "first");
  EXPECT_EQ(contentsOf(path_ + ".damaged-2"), "second");
  EXPECT_EQ(contentsOf(path_ + ".damaged-3"), "third");
}

TEST_F(DefaultsFileTest, staysWholeWhenTheDiskIsFull) {
  const std::string large(10000, 'x');
  for (const rlim_t room : {0, 1, 4096}) {
    const auto old = listOf({{"k", "old"}});
    folder_.write("/config/com.example.host/defaults.plist", old);
    {
      const FullDisk fullDisk(room);
      EXPECT_FALSE(merge({{"k", large}})) << room;
    }
    EXPECT_EQ(contentsOf(path_), old) << room;
    EXPECT_FALSE(fs::exists(path_ + ".new")) << room;

    folder_.write("/config/com.example.host/defaults.plist", "damaged");
    {
      const FullDisk fullDisk(room);
      EXPECT_FALSE(merge({{"k", large}})) << room;
    }
    EXPECT_EQ(contentsOf(path_), "damaged") << room;
  }
  EXPECT_TRUE(merge({{"k", large}}));
}

TEST_F(DefaultsFileTest, leavesAloneWhatItMayNotReadOrReplace) {
  const auto list = listOf({{"k", "old"}});
  folder_.write("/config/com.example.host/defaults.plist", list);
  const auto folder = fs::path(path_).parent_path();
  chmod(folder_.path().c_str(), 0755);
  chmod(folder.c_str(), 0777);
  chmod(path_.c_str(), 0);
  {
    const Unprivileged unprivileged;
    EXPECT_EQ(file_.read().state, State::blocked);
    EXPECT_FALSE(merge({{"k", "new"}}));
  }
  const auto unreadable = file_.identity();
  chmod(path_.c_str(), 0644);
  EXPECT_NE(file_.identity(), unreadable) << "it is worth another look";
  chmod(folder.c_str(), 0555);
  {
    const Unprivileged unprivileged;
    EXPECT_TRUE(file_.read().dictionary.find("k") == Value("old"));
    EXPECT_FALSE(merge({{"k", "new"}}));
  }
  chmod(folder.c_str(), 0755);
  EXPECT_EQ(contentsOf(path_), list);
}

TEST_F(DefaultsFileTest, leavesOutOnlyWhatDoesNotFit) {
  const auto eighths = [](std::size_t count) {
    return Value(std::string(kMaxPropertyListSize / 8 * count, 'x'));
  };
  ASSERT_TRUE(merge({{"there", eighths(4)}}));
  const auto merged = merge({{"large", eighths(2)}, {"larger", eighths(3)}, {"small", 1}});
  ASSERT_TRUE(merged);
  EXPECT_EQ(merged->tooLarge, std::vector<std::string>{"larger"});
  EXPECT_TRUE(file_.read().dictionary ==
              Value(Value::Dictionary{{"there", eighths(4)}, {"large", eighths(2)}, {"small", 1}}));
}

TEST_F(DefaultsFileTest, followsALinkAndLeavesIt) {
  fs::create_directories(fs::path(path_).parent_path());
  fs::create_symlink("../../elsewhere/real.plist", path_);
  for (int i = 1; i <= 2; ++i) { // first it leads to nothing
    ASSERT_TRUE(merge({{"k", i}}));
    EXPECT_TRUE(fs::is_symlink(path_));
    EXPECT_TRUE(DefaultsFile(folder_.path("/elsewhere/real.plist")).read().dictionary.find("k") ==
                Value(i));
  }
}

TEST_F(DefaultsFileTest, overwritesWhatACrashLeftBehind) {
  folder_.write("/config/com.example.host/defaults.plist.new", std::string(10000, 'x'));
  ASSERT_TRUE(merge({{"k", 1}}));
  EXPECT_TRUE(file_.read().dictionary == Value(Value::Dictionary{{"k", 1}}));
  EXPECT_FALSE(fs::exists(path_ + ".new"));
}

TEST_F(DefaultsFileTest, givesUpOnALockThatIsNotReleased) {
  ASSERT_TRUE(merge({{"k", 1}}));
  const FileDescriptor holder(open((path_ + ".lock").c_str(), O_RDWR | O_CLOEXEC));
  ASSERT_EQ(flock(holder.get(), LOCK_EX), 0);
  EXPECT_FALSE(file_.merge({{"k", 2}}, std::chrono::steady_clock::now()));
  EXPECT_TRUE(file_.read().dictionary.find("k") == Value(1));
}

TEST_F(DefaultsFileTest, cannotBeMadeWhereAFileIsInTheWay) {
  folder_.write("/config", "a file");
  EXPECT_FALSE(merge({{"k", 1}}));
  EXPECT_EQ(file_.read().state, State::blocked);
  EXPECT_EQ(contentsOf(folder_.path("/config")), "a file");
}

TEST(DefaultsPath, isBelowTheConfigurationFolder) {
  struct Row {
    const char* configuration;
    const char* home;
    std::string_view identifier;
    std::string expected;
  };
  const Row rows[]{
      {"/c", "/h", "com.example.host", "/c/com.example.host/defaults.plist"},
      {nullptr, "/h", "com.example.host", "/h/.config/com.example.host/defaults.plist"},
      {"", "/h", "x", "/h/.config/x/defaults.plist"},
      {"relative", "/h", "x", "/h/.config/x/defaults.plist"},
      {nullptr, "relative", "x", ""},
      {nullptr, nullptr, "x", ""},
      {"/c", "/h", "", ""},
      {"/c", "/h", ".", ""},
      {"/c", "/h", "..", ""},
      {"/c", "/h", "../x", ""},
      {"/c", "/h", "/x", ""},
      {"/c", "/h", std::string_view("x\0y", 3), ""}};
  for (const auto& row : rows) {
    const auto environment = [&](std::string_view name) {
      return name == "HOME" ? row.home : name == "XDG_CONFIG_HOME" ? row.configuration : nullptr;
    };
    EXPECT_EQ(defaultsFilePath(row.identifier, environment), row.expected) << row.identifier;
  }
}

} // namespace

} // namespace wrenvale::platform
