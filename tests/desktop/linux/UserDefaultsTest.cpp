#include "desktop/linux/settings/LinuxUserDefaults.h"

#include <atomic>
#include <stdexcept>
#include <thread>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/desktop/linux/TemporaryFolder.h"

extern "C" void __tsan_init() __attribute__((weak));

namespace wrenvale::platform {

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

int threadCount() {
  const fs::directory_iterator threads("/proc/self/task");
  return static_cast<int>(std::distance(begin(threads), end(threads)));
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

class UserDefaultsTest : public testing::Test {
protected:
  const TemporaryFolder folder_;
  const std::string path_ = folder_.path("/host/defaults.plist");

  Value onDisk(std::string_view key) const {
    return DefaultsFile(path_).read().dictionary.find(key);
  }

  // What another process of the host does.
  void writeElsewhere(const Value::Dictionary& changes) const {
    ASSERT_TRUE(DefaultsFile(path_).merge(changes, Clock::now() + 10s));
  }
};

TEST_F(UserDefaultsTest, hasAThreadOnlyWhileItWritesWhichIsWithinASecond) {
  const int threads = threadCount();
  LinuxUserDefaults defaults(path_);
  defaults.addObserver("k", [] {});
  EXPECT_TRUE(defaults.objectForKey("k").isNull());
  EXPECT_TRUE(defaults.synchronize());
  EXPECT_EQ(threadCount(), threads);
  EXPECT_FALSE(fs::exists(folder_.path("/host")));

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
  writeElsewhere({{"k", 2}, {"other", 2}});
  EXPECT_EQ(defaults.objectForKey("other"), Value(2));
  EXPECT_EQ(calls, 2) << "the key changed, whichever was read";
  EXPECT_EQ(defaults.objectForKey("k"), Value(2));
  EXPECT_EQ(calls, 2);

  defaults.setObject(3, "k");
  writeElsewhere({{"k", 4}, {"other", 4}});
  EXPECT_EQ(defaults.objectForKey("k"), Value(3)) << "still to be written";
  EXPECT_TRUE(defaults.synchronize());
  EXPECT_EQ(DefaultsFile(path_).read().dictionary,
            Value(Value::Dictionary{{"k", 3}, {"other", 4}}));
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
  writeElsewhere({{"gone", 1}});
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
