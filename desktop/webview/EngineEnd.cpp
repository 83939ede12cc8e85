#include "desktop/webview/EngineEnd.h"

#include <unistd.h>

#include <algorithm>
#include <utility>
#include <vector>

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>

QT_BEGIN_NAMESPACE
// What the end of an application object calls: the routines of qAddPostRoutine(), each once.
Q_CORE_EXPORT void qt_call_post_routines();
QT_END_NAMESPACE

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

// Nobody destroys them: from Qt 6.8 on, exit() would otherwise deliver what is posted for deletion.
void keep() {
  for (const auto& object : state().objects)
    if (object) QCoreApplication::removePostedEvents(object, QEvent::DeferredDelete);
}

void end() {
  state().hasEnded = true;
  for (const auto& object : std::exchange(state().objects, {}))
    delete object;
}

// A host may call exit() while its application object still exists; the engine's statics would then
// be destroyed while its threads still draw. This object is thread-local to the main thread: exit()
// destroys such objects before all statics, the latest first, while the engine is whole. Its
// destructor ends the engine in order. A forked child has no threads to end, and keeps all objects.
class EndOnExit {
public:
  ~EndOnExit() {
    if (state().hasEnded) return;
    if (::getpid() == process_)
      qt_call_post_routines();
    else
      keep();
  }

private:
  pid_t process_ = ::getpid();
};

} // namespace

void destroyBeforeEngine(std::initializer_list<QObject*> objects) {
  auto& all = state().objects;
  all.erase(std::remove(all.begin(), all.end(), nullptr), all.end());
  all.insert(all.end(), objects.begin(), objects.end());
}

// Routines run in the reverse of the order in which they were added.
void endBeforeEngine() {
  static thread_local const EndOnExit endOnExit;
  qRemovePostRoutine(end);
  qAddPostRoutine(end);
}

bool hasEngineEnded() {
  return state().hasEnded;
}

} // namespace wrenvale::platform
