#include "desktop/linux/settings/LinuxUserDefaults.h"

#include <new>
#include <thread>

#include <csignal>
#include <pthread.h>

#include "base/Guard.h"
#include "base/Log.h"
#include "desktop/BlockedSignals.h"
#include "desktop/linux/plist/PropertyList.h"

namespace wrenvale::platform {

namespace {

using Clock = std::chrono::steady_clock;

// Waits for more changes: several settings usually change together.
constexpr std::chrono::milliseconds kGatherTime(50);
constexpr std::chrono::seconds kPatience(10);
constexpr std::chrono::seconds kPatienceAtExit(3);

std::optional<DefaultsFile> fileAt(const std::filesystem::path& path) {
  return path.empty() ? std::nullopt : std::optional<DefaultsFile>(path.native());
}

std::optional<DefaultsFile::Merged> tryMerge(const DefaultsFile& file,
                                             const DefaultsMemory::Batch& batch,
                                             FileLock::Deadline deadline) noexcept {
  auto merged = guarded([&] { return file.merge(batch.changes, deadline, batch.known); });
  if (!merged) log::say("settings", [] { return "not written; tried again with the next change"; });
  return merged;
}

} // namespace

LinuxUserDefaults::LinuxUserDefaults(std::filesystem::path file)
    : file_(fileAt(file)) {
  addProcessListener(*this);
}

LinuxUserDefaults::~LinuxUserDefaults() {
  removeProcessListener(*this);
  Lock lock(mutex_);
  isEnding_ = true;
  changed_.notify_all();
  changed_.wait(lock, [this] { return !isWriterRunning_; });
  write(lock, Clock::now() + kPatience);
}

Value LinuxUserDefaults::objectForKey(std::string_view key) const {
  Lock lock(mutex_);
  const auto changedKeys = refresh();
  auto value = memory_.find(key);
  lock.unlock();
  notify(changedKeys);
  return value;
}

void LinuxUserDefaults::notify(const std::vector<std::string>& keys) const {
  for (const auto& key : keys)
    observers_.notify(key);
}

// Takes over what other processes wrote, and returns the observed keys that changed. Called with
// the lock held. The first reading changes no key, since no observer has seen another value.
std::vector<std::string> LinuxUserDefaults::refresh() const {
  if (!file_) return {};
  const auto identity = file_->identity();
  if (memory_.wasRead() && identity == memory_.identity()) return {};
  auto keys = memory_.wasRead() ? observers_.keys() : std::vector<std::string>();
  std::vector<Value> before;
  for (const auto& key : keys)
    before.push_back(memory_.find(key));
  const auto& known = memory_.lastKnown();
  memory_.adopt(known.identity == identity ? known : file_->read());
  std::size_t i = 0;
  std::erase_if(keys, [&](const auto& key) { return before[i++] == memory_.find(key); });
  return keys;
}

void LinuxUserDefaults::setObject(Value value, std::string_view key) {
  if (!value.isNull() && !isPropertyListValue(value, 1)) return;
  Lock lock(mutex_);
  auto changedKeys = refresh();
  if (!(memory_.find(key) == value)) changedKeys.emplace_back(key);
  memory_.set(key, std::move(value));
  startWriter();
  lock.unlock();
  notify(changedKeys);
}

bool LinuxUserDefaults::synchronize(std::chrono::milliseconds patience) {
  Lock lock(mutex_);
  return write(lock, Clock::now() + patience);
}

bool LinuxUserDefaults::canBeKept() const {
  if (!file_) return false;
  Lock lock(mutex_);
  const auto changedKeys = refresh();
  const bool isReadable = !memory_.isBlocked();
  lock.unlock();
  notify(changedKeys);
  return isReadable && file_->mayBeReplaced();
}

LinuxUserDefaults::ObserverID LinuxUserDefaults::addObserver(std::string_view key,
                                                             Observer observer) {
  return observers_.add(key, std::move(observer));
}

void LinuxUserDefaults::removeObserver(ObserverID id) {
  observers_.remove(id);
}

// Called with the lock held. When the system has no thread to give, the next change or the end of
// the process writes.
void LinuxUserDefaults::startWriter() {
  if (!file_ || isWriterRunning_) return;
  const BlockedSignals signalsBlocked;
  try {
    std::thread([this] { writeInBackground(); }).detach();
    isWriterRunning_ = true;
  } catch (...) {
  }
}

void LinuxUserDefaults::writeInBackground() {
  Lock lock(mutex_);
  std::uint64_t revision = 0;
  do {
    changed_.wait_for(lock, kGatherTime, [this] { return isEnding_; });
    revision = memory_.revision();
    write(lock, Clock::now() + kPatience);
  } while (!isEnding_ && memory_.revision() != revision);
  isWriterRunning_ = false;
  changed_.notify_all();
}

// Writes all that is unwritten when the call begins; false when it did not become durable. Called
// with the lock held, and releases it while the disk works.
bool LinuxUserDefaults::write(Lock& lock, FileLock::Deadline deadline) {
  if (!changed_.wait_until(lock, deadline, [this] { return !isWriting_; })) return false;
  const auto batch = memory_.unwritten();
  if (batch.changes.empty()) return true;
  if (!file_) return false;
  isWriting_ = true;
  lock.unlock();
  const auto merged = tryMerge(*file_, batch, deadline);
  lock.lock();
  isWriting_ = false;
  changed_.notify_all();
  if (!merged) return false;
  memory_.markWritten(batch, *merged);
  return merged->tooLarge.empty();
}

// Never waits for ever: another thread, or code that a signal handler interrupted, may hold the
// lock.
void LinuxUserDefaults::processWillExit() {
  const auto deadline = Clock::now() + kPatienceAtExit;
  Lock lock(mutex_, std::try_to_lock);
  while (!lock.owns_lock() && Clock::now() < deadline) {
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
    static_cast<void>(lock.try_lock());
  }
  if (lock.owns_lock()) write(lock, deadline);
}

void LinuxUserDefaults::processWillFork() {
  mutex_.lock();
  observers_.mutex().lock();
}

void LinuxUserDefaults::processDidForkInParent() {
  observers_.mutex().unlock();
  mutex_.unlock();
}

void LinuxUserDefaults::processDidForkInChild() {
  memory_.markAllWritten();
  isWriting_ = isWriterRunning_ = false;
  new (&changed_) std::condition_variable; // nobody waits any more, whatever the old one remembers
  processDidForkInParent();
}

} // namespace wrenvale::platform
