#include "desktop/qt/app/MainQueue.h"

#include <utility>

#include <QCoreApplication>
#include <QEvent>
#include <QObject>

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

} // namespace wrenvale::platform
