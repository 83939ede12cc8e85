#include "desktop/qt/app/QtQueues.h"

#include <cstdlib>
#include <utility>

#include <unistd.h>

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QThreadPool>

#include "desktop/BlockedSignals.h"

namespace wrenvale::platform {

// Turns each event that it receives into one task.
class MainQueue::Receiver final : public QObject {
public:
  explicit Receiver(MainQueue& queue)
      : queue_(queue) {}

  bool event(QEvent* event) override {
    if (event->type() != QEvent::User) return QObject::event(event);
    queue_.runOne();
    return true;
  }

private:
  MainQueue& queue_;
};

void MainQueue::async(Task task) {
  const std::lock_guard lock(mutex_);
  if (closed_ || tasks_.size() >= kMostWaiting) return;
  tasks_.push_back(std::move(task));
  wake();
}

// Under the lock, so that the receiver cannot go meanwhile.
void MainQueue::wake() {
  if (receiver_) QCoreApplication::postEvent(receiver_, new QEvent(QEvent::User));
}

void MainQueue::open() {
  const std::lock_guard lock(mutex_);
  if (receiver_ || closed_) return;
  receiver_ = new Receiver(*this);
  for (std::size_t i = 0; i < tasks_.size(); ++i)
    wake();
}

void MainQueue::close() {
  std::deque<Task> dropped; // destroyed outside the lock, whatever its tasks own
  const std::lock_guard lock(mutex_);
  closed_ = true;
  dropped.swap(tasks_);
  delete std::exchange(receiver_, nullptr);
}

void MainQueue::runOne() {
  Task task;
  {
    const std::lock_guard lock(mutex_);
    if (tasks_.empty()) return;
    task = std::move(tasks_.front());
    tasks_.pop_front();
  }
  try {
    task();
  } catch (...) { // no exception of the framework's reaches the host's event loop
  }
}

// Called with the lock held.
QThreadPool& BackgroundQueue::pool() {
  if (pool_) return *pool_;
  pool_ = new QThreadPool;
  pool_->setObjectName("wrenvale");
  pool_->setMaxThreadCount(width_);
  pool_->setExpiryTimeout(0);
  return *pool_;
}

void BackgroundQueue::async(Task task) {
  const std::lock_guard lock(mutex_);
  if (ended_ || waiting_ == kMostWaiting) return;
  const BlockedSignals blocked;
  pool().start([this, task = std::move(task)] { run(task); });
  ++waiting_;
}

void BackgroundQueue::run(const Task& task) {
  {
    const std::lock_guard lock(mutex_);
    --waiting_;
  }
  if (ended_) return;
  try {
    task();
  } catch (...) { // dropped, and the next one runs all the same
  }
}

void BackgroundQueue::end() {
  std::unique_lock lock(mutex_);
  ended_ = true; // the pool stays as it is from now on
  lock.unlock(); // whatever the dropped tasks own
  if (pool_) pool_->clear();
}

void BackgroundQueue::wait(QDeadlineTimer deadline) {
  if (pool_) pool_->waitForDone(static_cast<int>(deadline.remainingTime()));
}

namespace {

constexpr std::chrono::milliseconds kPatienceAtExit{80};

// For the exit handlers, which are plain functions. A forked child ends nothing: the threads are
// its parent's.
QtQueues* started = nullptr;
pid_t startedBy = 0;

void endStarted() {
  if (getpid() == startedBy) started->end();
}

} // namespace

void QtQueues::start() {
  started = this;
  startedBy = getpid();
  qAddPostRoutine(endStarted); // as a rule, the application object goes before the process
  std::atexit(endStarted);     // a host may exit without
  mainQueue_.open();
}

void QtQueues::end() {
  mainQueue_.close();
  globalQueue_.end();
  serialQueue_.end();
  cancelDownloads_();
  const QDeadlineTimer deadline(kPatienceAtExit);
  globalQueue_.wait(deadline);
  serialQueue_.wait(deadline);
}

} // namespace wrenvale::platform
