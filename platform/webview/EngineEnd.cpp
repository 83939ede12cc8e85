#include "platform/webview/EngineEnd.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <QCoreApplication>
#include <QPointer>

namespace wrenvale::platform {

namespace {

struct State {
  std::vector<QPointer<QObject>> objects;
  bool hasEnded = false;
};

State& state() {
  static auto& state = *new State;
  return state;
}

void end() {
  state().hasEnded = true;
  for (const auto& object : std::exchange(state().objects, {}))
    delete object;
}

} // namespace

void destroyBeforeEngine(std::initializer_list<QObject*> objects) {
  auto& all = state().objects;
  all.erase(std::remove(all.begin(), all.end(), nullptr), all.end());
  all.insert(all.end(), objects.begin(), objects.end());
}

// Routines run in the reverse of the order in which they were added.
void endBeforeEngine() {
  qRemovePostRoutine(end);
  qAddPostRoutine(end);
}

bool hasEngineEnded() {
  return state().hasEnded;
}

} // namespace wrenvale::platform
