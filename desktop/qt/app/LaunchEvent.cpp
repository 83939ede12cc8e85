#include "desktop/qt/app/LaunchEvent.h"

#include <utility>
#include <vector>

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QThread>

namespace wrenvale::platform {

namespace {

// Handlers that still wait. Main thread only, or before there is any other.
std::vector<std::function<void()>>& waiting() {
  static auto& handlers = *new std::vector<std::function<void()>>;
  return handlers;
}

void launch() {
  for (const auto& handler : std::exchange(waiting(), {}))
    handler();
}

// Called at the beginning of each turn of the main thread's dispatcher, before it looks at any
// event that the host queued. The first turn inside an event loop is the host's launch.
void turn(QObject* connections) {
  if (QThread::currentThread()->loopLevel() == 0) return;
  connections->deleteLater();
  QObject::disconnect(QAbstractEventDispatcher::instance(), nullptr, connections, nullptr);
  launch();
}

// Runs whenever the host has created an application object.
void watchDispatcher() {
  auto* dispatcher = QAbstractEventDispatcher::instance();
  if (waiting().empty() || !dispatcher) return;
  auto* connections = new QObject(dispatcher);
  const auto onTurn = [connections] { turn(connections); };
  // One of the two comes first in every kind of dispatcher.
  QObject::connect(dispatcher, &QAbstractEventDispatcher::awake, connections, onTurn);
  QObject::connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, connections, onTurn);
}

} // namespace

void callWhenLaunched(std::function<void()> handler) {
  const bool isFirst = waiting().empty();
  waiting().push_back(std::move(handler));
  // Called at once where the application object is there already.
  if (isFirst) qAddPreRoutine(watchDispatcher);
}

} // namespace wrenvale::platform
