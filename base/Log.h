// What the framework decided and why, for whoever looks for the reason: one line a decision.
// Silent, and free but for one comparison, until somebody listens.

#ifndef WRENVALE_BASE_LOG_H
#define WRENVALE_BASE_LOG_H

#include <atomic>
#include <string>

#include "base/Guard.h"

namespace wrenvale::log {

/// Takes one line, without its end. `subject` is one word, such as "rating". Any thread; does not
/// throw.
using Sink = void (*)(const char* subject, const std::string& line);

/// Who listens; null for nobody. The library and each of its modules have their own.
inline std::atomic<Sink> sink = nullptr;

/// Says the line that `line` makes, which is called only when somebody listens. A line has nothing
/// private in it, such as a subscriber's address.
template <class Line>
void say(const char* subject, Line line) {
  if (const Sink listener = sink.load(std::memory_order_relaxed))
    guarded([&] { listener(subject, line()); });
}

} // namespace wrenvale::log

#endif
