#include "desktop/linux/settings/LinuxUserDefaults.h"

#include <atomic>
#include <chrono>
#include <stdexcept>
#include <thread>

#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/desktop/linux/TemporaryFolder.h"

#if defined(__SANITIZE_THREAD__)
#define WRENVALE_THREAD_SANITIZER 1
#elif defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define WRENVALE_THREAD_SANITIZER 1
#endif
#endif

namespace wrenvale::platform {

namespace {

namespace fs = std::filesystem;

int threadCount() {
  const fs::directory_iterator threads("/proc/self/task");
  return static_cast<int>(std::distance(begin(threads), end(threads)));
}

int exitCodeOf(pid_t child) {
  int status = 0;
  if (waitpid(child, &status, 0) != child || !WIFEXITED(status)) return -1;
  return WEXITSTATUS(status);
}

class UserDefaultsTest : public testing::Test {
protected:
  const TemporaryFolder folder_;
  const std::string path_ = folder_.path("/host/defaults.plist");

  Value onDisk(std::string_view key) const {
    return DefaultsFile(path_).read().dictionary.find(key);
  }

  // What another process of the host does.
  void writeElsewhere(const Value::Dictionary& changes) const {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    ASSERT_TRUE(DefaultsFile(path_).merge(changes, deadline));
  }

  pid_t startHost(std::vector<std::string> arguments) const {
    std::vector<char*> argv;
    arguments.insert(arguments.begin(), {WRENVALE_DEFAULTS_HOST, path_});
    for (auto& argument : arguments)
      argv.push_back(argument.data());
    argv.push_back(nullptr);
    pid_t child = -1;
    posix_spawn(&child, argv[0], nullptr, nullptr, argv.data(), environ);
    return child;
  }
};

TEST_F(UserDefaultsTest, readsWhatItWroteAtOnceAndAfterReopening) {
  {
    LinuxUserDefaults defaults(path_);
    EXPECT_TRUE(defaults.objectForKey("k").isNull());
    defaults.setObject("v", "k");
    defaults.setObject(1, "gone");
    defaults.removeObjectForKey("gone");
    EXPECT_EQ(defaults.objectForKey("k"), Value("v"));
    EXPECT_TRUE(defaults.objectForKey("gone").isNull());
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(onDisk("k"), Value("v"));
    EXPECT_TRUE(onDisk("gone").isNull());
    defaults.setObject("later", "k");
  }
  EXPECT_EQ(LinuxUserDefaults(path_).objectForKey("k"), Value("later"));
}

TEST_F(UserDefaultsTest, startsNothingUntilSomethingIsToBeWritten) {
  const int threads = threadCount();
  LinuxUserDefaults defaults(path_);
  defaults.addObserver("k", [] {});
  EXPECT_TRUE(defaults.objectForKey("k").isNull());
  EXPECT_TRUE(defaults.synchronize());
  EXPECT_EQ(threadCount(), threads);
  EXPECT_FALSE(fs::exists(folder_.path("/host")));
}

TEST_F(UserDefaultsTest, reachesTheDiskWithinASecondAndLeavesNoThread) {
  const int threads = threadCount();
  LinuxUserDefaults defaults(path_);
  const auto start = std::chrono::steady_clock::now();
  defaults.setObject(1, "k");
  while (onDisk("k").isNull() &&
         std::chrono::steady_clock::now() < start + std::chrono::seconds(20))
    std::this_thread::yield();
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
  while (threadCount() > threads &&
         std::chrono::steady_clock::now() < start + std::chrono::seconds(20))
    std::this_thread::yield();
  EXPECT_EQ(threadCount(), threads);
}

TEST_F(UserDefaultsTest, seesWhatAnotherProcessWrote) {
  LinuxUserDefaults defaults(path_);
  int calls = 0;
  defaults.addObserver("k", [&] { ++calls; });
  defaults.setObject(1, "k");
  EXPECT_TRUE(defaults.synchronize());
  writeElsewhere({{"k", 2}, {"other", 2}});
  EXPECT_EQ(defaults.objectForKey("other"), Value(2));
  EXPECT_EQ(calls, 2) << "the key changed, whichever was read";
  EXPECT_EQ(defaults.objectForKey("k"), Value(2));
  EXPECT_EQ(calls, 2);

  defaults.setObject(3, "k");
  writeElsewhere({{"k", 4}, {"other", 4}});
  EXPECT_EQ(defaults.objectForKey("k"), Value(3)) << "still to be written";
  EXPECT_TRUE(defaults.synchronize());
  EXPECT_EQ(onDisk("k"), Value(3));
  EXPECT_EQ(onDisk("other"), Value(4));

  fs::remove(path_);
  EXPECT_TRUE(defaults.objectForKey("k").isNull());
}

TEST_F(UserDefaultsTest, notifiesOfChangesOnly) {
  writeElsewhere({{"k", "there"}});
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
  EXPECT_EQ(log, std::vector<std::string>{});
  defaults.setObject("new", "k");
  EXPECT_EQ(log, (std::vector<std::string>{"first new", "nested", "third"}));
  log.clear();
  defaults.removeObserver(first);
  defaults.removeObserver(12345);
  defaults.removeObjectForKey("k");
  EXPECT_EQ(log, std::vector<std::string>{"third"});
}

TEST_F(UserDefaultsTest, refusesWhatAFileCannotHold) {
  LinuxUserDefaults defaults(path_);
  int calls = 0;
  defaults.setObject("before", "k");
  defaults.addObserver("k", [&] { ++calls; });
  defaults.setObject(Value::Array{Value()}, "k");
  EXPECT_EQ(defaults.objectForKey("k"), Value("before"));
  EXPECT_EQ(calls, 0);
  EXPECT_TRUE(defaults.synchronize());
}

TEST_F(UserDefaultsTest, keepsInMemoryWhatItCannotWrite) {
  {
    LinuxUserDefaults defaults(path_);
    fs::create_directories(path_); // a folder in its place
    defaults.setObject(1, "k");
    EXPECT_FALSE(defaults.synchronize());
    EXPECT_EQ(defaults.objectForKey("k"), Value(1));
    fs::remove(path_);
    EXPECT_EQ(defaults.objectForKey("k"), Value(1));
    defaults.setObject(2, "other");
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(onDisk("k"), Value(1));
  }
  LinuxUserDefaults inMemory{fs::path()};
  EXPECT_TRUE(inMemory.synchronize());
  inMemory.setObject(1, "k");
  EXPECT_EQ(inMemory.objectForKey("k"), Value(1));
  EXPECT_FALSE(inMemory.synchronize());
}

TEST_F(UserDefaultsTest, isSafeFromManyThreads) {
  {
    LinuxUserDefaults defaults(path_);
    std::atomic<int> calls = 0;
    defaults.addObserver("shared", [&] { ++calls; });
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t)
      threads.emplace_back([&, t] {
        for (int i = 0; i < 100; ++i) {
          defaults.setObject(t * 1000 + i, "shared");
          defaults.setObject(i, "key" + std::to_string(t));
          EXPECT_EQ(defaults.objectForKey("key" + std::to_string(t)), Value(i));
          if (i % 50 == 0) {
            EXPECT_TRUE(defaults.synchronize());
          }
        }
      });
    for (auto& thread : threads)
      thread.join();
    EXPECT_GT(calls, 0);
  }
  for (int t = 0; t < 4; ++t)
    EXPECT_EQ(onDisk("key" + std::to_string(t)), Value(99)) << t;
}

TEST_F(UserDefaultsTest, losesNothingBetweenThreeProcesses) {
  constexpr int kCount = 60;
  std::vector<pid_t> hosts;
  for (const char* prefix : {"a", "b", "c"})
    hosts.push_back(startHost({"write", prefix, std::to_string(kCount)}));
  for (const auto host : hosts)
    EXPECT_EQ(exitCodeOf(host), 0);
  const auto all = DefaultsFile(path_).read().dictionary;
  for (const char* prefix : {"a", "b", "c"})
    for (int i = 0; i < kCount; ++i)
      EXPECT_EQ(all.find(prefix + std::to_string(i)), Value(i)) << prefix << i;
}

TEST_F(UserDefaultsTest, writesWhatIsPendingWhenTheProcessEnds) {
  EXPECT_EQ(exitCodeOf(startHost({"write", "k", "2"})), 0);
  EXPECT_EQ(onDisk("k1"), Value(1));
  EXPECT_EQ(exitCodeOf(startHost({"late", "from a destructor"})), 0);
  EXPECT_EQ(onDisk("from a destructor"), Value(true));
}

TEST_F(UserDefaultsTest, worksOnInAForkedChildWhichLeavesPendingWritesToItsParent) {
#ifdef WRENVALE_THREAD_SANITIZER
  GTEST_SKIP() << "the thread sanitizer has no threads after a fork";
#endif
  LinuxUserDefaults defaults(path_);
  std::jthread busy([&](const std::stop_token& stop) {
    for (int i = 0; !stop.stop_requested(); ++i)
      defaults.setObject(i, "busy");
  });
  int pipe[2];
  ASSERT_EQ(::pipe(pipe), 0);
  for (int round = 0; round < 20; ++round) {
    defaults.setObject("old", "k");
    const auto child = fork();
    char go = 0;
    if (child == 0) {
      defaults.setObject(round, "child's");
      const bool isTurn = read(pipe[0], &go, 1) == 1;
      _exit(isTurn && defaults.synchronize() ? 0 : 1);
    }
    defaults.setObject("new", "k");
    EXPECT_TRUE(defaults.synchronize());
    ASSERT_EQ(write(pipe[1], &go, 1), 1);
    ASSERT_EQ(exitCodeOf(child), 0) << round;
    ASSERT_EQ(onDisk("child's"), Value(round));
    ASSERT_EQ(onDisk("k"), Value("new")) << "not overwritten by the child";
  }
  close(pipe[0]);
  close(pipe[1]);
  EXPECT_EQ(defaults.objectForKey("child's"), Value(19));
}

} // namespace

} // namespace wrenvale::platform
