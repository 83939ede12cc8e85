// Whether the main thread is free.

#ifndef WRENVALE_BENCHMARKS_WELCOME_HEARTBEAT_H
#define WRENVALE_BENCHMARKS_WELCOME_HEARTBEAT_H

#include <algorithm>
#include <utility>

#include <QTimer>

#include "benchmarks/Figures.h"

namespace wrenvale::benchmark {

/// How long the event loop did not turn, at the longest.
class Heartbeat {
public:
  /// Begins at a moment in nanoseconds of now().
  explicit Heartbeat(long long begin = now())
      : last_(begin) {
    QObject::connect(&timer_, &QTimer::timeout, [this] { beat(); });
    timer_.start(1);
  }
  /// In milliseconds, since the last time this was asked.
  double longestPause() {
    beat();
    return std::exchange(longest_, 0);
  }

private:
  void beat() {
    const auto time = now();
    longest_ = std::max(longest_, static_cast<double>(time - last_) / 1e6);
    last_ = time;
  }

  QTimer timer_;
  long long last_;
  double longest_ = 0;
};

} // namespace wrenvale::benchmark

#endif
