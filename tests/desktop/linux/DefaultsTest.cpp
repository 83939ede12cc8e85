// The user's settings: their file, what a process keeps of it, and several processes at once.

#include <atomic>
#include <csignal>
#include <set>
#include <stdexcept>
#include <thread>
#include <tuple>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include "desktop/linux/plist/PropertyList.h"
#include "desktop/linux/settings/FileReplacement.h"
#include "desktop/linux/settings/Files.h"
#include "desktop/linux/settings/LinuxUserDefaults.h"
#include "tests/desktop/linux/TemporaryFolder.h"

extern "C" void __tsan_init() __attribute__((weak));

namespace {
std::atomic<bool> folderSyncFails = false;
}

// Takes the C library's place.
extern "C" int fsync(int file) {
  struct stat status = {};
  const bool fails = folderSyncFails && fstat(file, &status) == 0 && S_ISDIR(status.st_mode);
  if (!fails) return static_cast<int>(syscall(SYS_fsync, file));
  errno = EIO;
  return -1;
}

namespace wrenvale::platform {

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using namespace std::string_view_literals;
using Clock = std::chrono::steady_clock;
using State = DefaultsContent::State;

const std::string kOldList = "<plist><dict><key>k</key><string>old</string></dict></plist>";

int filesIn(const std::string& folder) {
  const fs::directory_iterator files(folder);
  return static_cast<int>(std::distance(begin(files), end(files)));
}

int threadCount() {
  return filesIn("/proc/self/task");
}

// Runs it in a process of its own, which ends as a program does.
pid_t start(const std::function<void()>& program) {
  const auto child = fork();
  if (child != 0) return child;
  program();
  std::exit(testing::Test::HasFailure());
}

int statusOf(pid_t child) {
  int status = -1;
  waitpid(child, &status, 0);
  return status;
}

class DefaultsTest : public testing::Test {
protected:
  // As another process of the host does.
  std::optional<DefaultsFile::Merged> merge(const Value::Dictionary& changes) const {
    return file_.merge(changes, Clock::now() + 10s);
  }
  void put(std::string_view content) const {
    folder_.write("/config/com.example.host/defaults.plist", content);
  }
  bool holds(const Value::Dictionary& expected) const {
    return file_.read().dictionary == Value(expected);
  }
  Value onDisk(std::string_view key) const { return file_.read().dictionary.find(key); }

  const TemporaryFolder folder_;
  const std::string parent_ = folder_.path("/config/com.example.host");
  const std::string path_ = parent_ + "/defaults.plist";
  const DefaultsFile file_{path_};
};

using DefaultsFileTest = DefaultsTest;
using UserDefaultsTest = DefaultsTest;

TEST_F(DefaultsFileTest, tellsWhatIsInItsPlace) {
  const std::tuple<const char*, std::function<void()>, State> rows[]{
      {"nothing", [] {}, State::absent},
      {"no bytes", [&] { put(""); }, State::whole},
      {"an array", [&] { put("<plist><array/></plist>"); }, State::damaged},
      {"50 MB", [&] { put(""), fs::resize_file(path_, 50'000'000); }, State::damaged},
      {"a pipe", [&] { mkfifo(path_.c_str(), 0600); }, State::blocked},
      {"a link to itself", [&] { fs::create_symlink("defaults.plist", path_); }, State::blocked}};
  for (const auto& [name, make, state] : rows) {
    fs::create_directories(parent_);
    make();
    const auto content = file_.read();
    EXPECT_EQ(content.state, state) << name;
    EXPECT_EQ(content.identity, file_.identity()) << name;
    EXPECT_EQ(merge({{"new", 1}}).has_value(), state != State::blocked) << name;
    EXPECT_EQ(holds({{"new", 1}}), state != State::blocked) << name;
    EXPECT_EQ(fs::exists(path_ + ".damaged"), state == State::damaged) << name;
    EXPECT_EQ(fs::exists(path_ + ".lock"), state != State::blocked) << name;
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
  folder_.write("/config/com.example.host/defaults.plist.new-abc", "a crash's");
  fs::last_write_time(path_ + ".new-abc", fs::file_time_type::clock::now() - 2min);
  for (const std::string name : {".damaged", ".damaged-2", ".damaged-3"}) {
    put("was " + name);
    ASSERT_TRUE(merge({{"k", 1}}));
    EXPECT_TRUE(holds({{"k", 1}}));
    EXPECT_EQ(contentsOf(path_ + name), "was " + name);
  }
  EXPECT_FALSE(fs::exists(path_ + ".new-abc"));
}

TEST_F(DefaultsFileTest, staysWholeWhereLocksDoNothing) {
  const auto writer = [&](char letter) {
    const std::string content(100'000, letter);
    for (int i = 0; i < 30; ++i)
      EXPECT_TRUE(replaceFile({path_, content}));
  };
  fs::create_directories(parent_);
  std::vector<std::thread> writers;
  for (const char letter : {'a', 'b', 'c', 'd'})
    writers.emplace_back(writer, letter);
  for (auto& each : writers)
    each.join();
  const auto content = contentsOf(path_);
  EXPECT_EQ(content, std::string(100'000, content[0]));
  EXPECT_EQ(filesIn(parent_), 1);
}

TEST_F(DefaultsFileTest, locksTheFileThatOthersLockToo) {
  fs::create_directories(parent_);
  auto first = std::make_unique<FileLock>(path_ + ".lock", Clock::now());
  std::thread holder([&] {
    std::this_thread::sleep_for(20ms);
    fs::remove(path_ + ".lock");
    first.reset();
  });
  const FileLock second(path_ + ".lock", Clock::now() + 10s);
  holder.join();
  EXPECT_TRUE(second.isHeld());
  EXPECT_FALSE(FileLock(path_ + ".lock", Clock::now()).isHeld());
}

TEST_F(DefaultsFileTest, staysWholeWhenTheDiskIsFull) {
  const std::string large(10000, 'x');
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  for (const auto& old : {kOldList, std::string("damaged")})
    for (const rlim_t room : {0, 1, 4096}) {
      put(old);
      const rlimit full{room, before.rlim_max}; // for each file of this process
      setrlimit(RLIMIT_FSIZE, &full);
      EXPECT_FALSE(merge({{"k", large}})) << room;
      setrlimit(RLIMIT_FSIZE, &before);
      EXPECT_EQ(contentsOf(path_), old) << room;
      EXPECT_EQ(filesIn(parent_), 2) << room << ": it and its lock";
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
  EXPECT_FALSE(LinuxUserDefaults(path_).canBeKept());
  EXPECT_TRUE(LinuxUserDefaults(parent_ + "/new/folder/file").canBeKept());
  EXPECT_FALSE(LinuxUserDefaults(folder_.path("/new/folder/file")).canBeKept());
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
  EXPECT_EQ(merged.value().tooLarge, std::vector<std::string>{"larger"});
  EXPECT_TRUE(holds({{"there", eighths(4)}, {"large", eighths(2)}, {"small", 1}}));
}

TEST_F(DefaultsFileTest, isDurableOnlyOnceItsFolderIs) {
  folderSyncFails = true;
  EXPECT_FALSE(merge({{"k", 1}}));
  EXPECT_FALSE(merge({{"k", 1}})) << "it is there, but may be gone after a loss of power";
  folderSyncFails = false;
  EXPECT_TRUE(merge({{"k", 1}}));
}

TEST_F(DefaultsFileTest, isNotTakenForEmptyWhenItsEndCannotBeRead) {
  const std::string shorterThanItSays = "/sys/kernel/mm/transparent_hugepage/enabled";
  if (!fs::exists(shorterThanItSays)) GTEST_SKIP();
  EXPECT_EQ(DefaultsFile(shorterThanItSays).read().state, State::blocked);
}

TEST(MakeFolder, DoesNotTryAPathThatCannotBe) {
  std::string deep;
  for (int i = 0; i < 60'000; ++i)
    deep += "/a";
  EXPECT_FALSE(makeFolder(deep)); // would take gigabytes
}

TEST_F(DefaultsFileTest, givesUpOnALockThatIsNotReleased) {
  ASSERT_TRUE(merge({{"k", 1}}));
  const FileDescriptor holder(open((path_ + ".lock").c_str(), O_RDWR | O_CLOEXEC));
  ASSERT_EQ(flock(holder.get(), LOCK_EX), 0);
  EXPECT_FALSE(file_.merge({{"k", 2}}, Clock::now()));
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

TEST_F(UserDefaultsTest, hasAThreadOnlyWhileItWritesWhichIsWithinASecond) {
  const int threads = threadCount();
  LinuxUserDefaults defaults(path_);
  defaults.addObserver("k", [] {});
  EXPECT_TRUE(defaults.objectForKey("k").isNull());
  EXPECT_TRUE(defaults.synchronize());
  EXPECT_EQ(threadCount(), threads);
  EXPECT_FALSE(fs::exists(folder_.path("/config")));

  const auto start = Clock::now();
  defaults.setObject(1, "k");
  while (onDisk("k").isNull() && Clock::now() < start + 1s)
    std::this_thread::yield();
  EXPECT_EQ(onDisk("k"), Value(1));
  while (threadCount() != threads && Clock::now() < start + 20s)
    std::this_thread::yield();
  EXPECT_EQ(threadCount(), threads);
}

TEST_F(UserDefaultsTest, seesWhatAnotherProcessWrote) {
  LinuxUserDefaults defaults(path_);
  int calls = 0;
  defaults.addObserver("k", [&] { ++calls; });
  defaults.setObject(1, "k");
  EXPECT_TRUE(defaults.synchronize());
  merge({{"k", 2}, {"other", 2}});
  EXPECT_EQ(defaults.objectForKey("other"), Value(2));
  EXPECT_EQ(calls, 2) << "the key changed, whichever was read";
  EXPECT_EQ(defaults.objectForKey("k"), Value(2));
  EXPECT_EQ(calls, 2);

  defaults.setObject(3, "k");
  merge({{"k", 4}, {"other", 4}});
  EXPECT_EQ(defaults.objectForKey("k"), Value(3)) << "still to be written";
  EXPECT_TRUE(defaults.synchronize());
  EXPECT_TRUE(holds({{"k", 3}, {"other", 4}}));
  fs::remove(path_);
  EXPECT_TRUE(defaults.objectForKey("k").isNull());
}

TEST_F(UserDefaultsTest, notifiesOfChangesOnly) {
  merge({{"k", "there"}});
  LinuxUserDefaults defaults(path_);
  std::vector<std::string> log;
  UserDefaults::ObserverID second = 0;
  const auto first = defaults.addObserver("k", [&] {
    log.push_back("first " + stringValue(defaults.objectForKey("k")).value_or("none"));
    defaults.removeObserver(second);
    defaults.setObject(static_cast<int>(log.size()), "nested");
    throw std::runtime_error("the host's");
  });
  second = defaults.addObserver("k", [&] { log.push_back("second"); });
  defaults.addObserver("k", [&] { log.push_back("third"); });
  defaults.addObserver("nested", [&] { log.push_back("nested"); });
  defaults.addObserver("k", nullptr);

  defaults.setObject("there", "k");
  defaults.setObject(Value::Array{Value()}, "k"); // which no file can hold
  EXPECT_EQ(log, std::vector<std::string>{});
  EXPECT_EQ(defaults.objectForKey("k"), Value("there"));
  defaults.setObject("new", "k");
  EXPECT_EQ(log, (std::vector<std::string>{"first new", "nested", "third"}));
  log.clear();
  defaults.removeObserver(first);
  defaults.removeObjectForKey("k");
  EXPECT_TRUE(defaults.objectForKey("k").isNull());
  EXPECT_EQ(log, std::vector<std::string>{"third"});
}

TEST_F(UserDefaultsTest, keepsInMemoryWhatItCannotWrite) {
  LinuxUserDefaults defaults(path_);
  fs::create_directories(path_); // a folder in its place
  defaults.setObject(1, "k");
  EXPECT_FALSE(defaults.synchronize());
  fs::remove(path_);
  EXPECT_EQ(defaults.objectForKey("k"), Value(1));
  defaults.setObject(2, "other");
  EXPECT_TRUE(defaults.synchronize());
  EXPECT_EQ(onDisk("k"), Value(1));

  LinuxUserDefaults inMemory{fs::path()};
  EXPECT_TRUE(inMemory.synchronize());
  inMemory.setObject(1, "k");
  EXPECT_EQ(inMemory.objectForKey("k"), Value(1));
  EXPECT_FALSE(inMemory.synchronize());
}

TEST_F(UserDefaultsTest, isSafeFromManyThreads) {
  merge({{"gone", 1}});
  {
    LinuxUserDefaults defaults(path_);
    std::atomic<int> calls = 0;
    defaults.removeObjectForKey("gone");
    defaults.addObserver("shared", [&] { ++calls; });
    std::vector<std::jthread> threads;
    for (int t = 0; t < 4; ++t)
      threads.emplace_back([&, key = "key" + std::to_string(t), t] {
        for (int i = 0; i < 100; ++i) {
          defaults.setObject(t * 1000 + i, "shared");
          defaults.setObject(i, key);
          EXPECT_EQ(defaults.objectForKey(key), Value(i));
          EXPECT_TRUE(i % 50 != 0 || defaults.synchronize());
        }
      });
    threads.clear();
    EXPECT_GT(calls, 0);
  }
  EXPECT_TRUE(onDisk("gone").isNull());
  for (int t = 0; t < 4; ++t)
    EXPECT_EQ(onDisk("key" + std::to_string(t)), Value(99)) << t;
}

TEST_F(UserDefaultsTest, losesNothingBetweenThreeProcessesNorWhenTheyEnd) {
  constexpr int kCount = 62; // what is set after the last turn is written at the end
  struct Late {
    std::string prefix;
    LinuxUserDefaults* defaults = nullptr;
    ~Late() { defaults->setObject(kCount, prefix + std::to_string(kCount)); }
  };
  std::vector<pid_t> hosts;
  for (const std::string prefix : {"a", "b", "c"})
    hosts.push_back(start([&] {
      static Late late{prefix};
      late.defaults = new LinuxUserDefaults(path_); // so that it is the first to learn of the end
      for (int i = 0; i < kCount; ++i) {
        late.defaults->setObject(i, prefix + std::to_string(i));
        EXPECT_TRUE(i % 4 != 0 || late.defaults->synchronize());
      }
    }));
  for (const auto host : hosts)
    EXPECT_EQ(statusOf(host), 0);
  for (const char* prefix : {"a", "b", "c"})
    for (int i = 0; i <= kCount; ++i)
      EXPECT_EQ(onDisk(prefix + std::to_string(i)), Value(i)) << prefix << i;
}

TEST_F(UserDefaultsTest, worksOnInAForkedChildWhichLeavesPendingWritesToItsParent) {
  if (__tsan_init) GTEST_SKIP() << "the thread sanitizer has no threads after a fork";
  LinuxUserDefaults defaults(path_);
  const std::jthread busy([&](const std::stop_token& stop) {
    for (int i = 0; !stop.stop_requested(); ++i)
      defaults.setObject(i, "busy");
  });
  int pipe[2];
  ASSERT_EQ(::pipe(pipe), 0);
  for (int round = 0; round < 20; ++round) {
    defaults.setObject("old", "k");
    char go = 0;
    const auto child = start([&] {
      defaults.setObject(round, "child's");
      const bool isTurn = read(pipe[0], &go, 1) == 1;
      _exit(isTurn && defaults.synchronize() ? 0 : 1);
    });
    defaults.setObject("new", "k");
    EXPECT_TRUE(defaults.synchronize());
    ASSERT_EQ(write(pipe[1], &go, 1), 1);
    ASSERT_EQ(statusOf(child), 0) << round;
    ASSERT_EQ(defaults.objectForKey("child's"), Value(round));
    ASSERT_EQ(onDisk("k"), Value("new")) << "not overwritten by the child";
  }
}

} // namespace

} // namespace wrenvale::platform
