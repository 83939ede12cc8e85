// What the benchmark programs measure with, and how they say it: one JSON object a line on standard
// output, which scripts/bench gathers. It knows the unit and the budget of each figure.

#ifndef WRENVALE_BENCHMARKS_FIGURES_H
#define WRENVALE_BENCHMARKS_FIGURES_H

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace wrenvale::benchmark {

/// Nanoseconds of the clock that all processes share.
inline long long now() {
  return std::chrono::steady_clock::now().time_since_epoch().count();
}

inline double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values.empty() ? 0 : values[values.size() / 2];
}

/// Ours beside the same work done without the framework.
struct Pair {
  double ours = 0;
  double reference = 0;
};

/// Says one figure. `size` is how much work it was for, 0 when it has no size.
inline void say(const char* figure, std::size_t size, Pair pair) {
  std::printf("{\"figure\": \"%s\", \"size\": %zu, \"ours\": %.6g, \"reference\": %.6g}\n", figure,
              size, pair.ours, pair.reference);
  std::fflush(stdout);
}

template <class Call>
double microsecondsOf(Call& call) {
  const auto start = now();
  call();
  return static_cast<double>(now() - start) / 1e3;
}

/// The median times of one call, in microseconds, the two called in turns.
template <class Ours, class Reference>
Pair timesInTurns(int runs, Ours ours, Reference reference) {
  std::vector<double> times, references;
  for (int i = 0; i < runs; ++i) {
    times.push_back(microsecondsOf(ours));
    references.push_back(microsecondsOf(reference));
  }
  return {median(std::move(times)), median(std::move(references))};
}

} // namespace wrenvale::benchmark

#endif
