// Time and memory as the two programs report them.

#ifndef WRENVALE_BENCHMARKS_WELCOME_MOMENT_H
#define WRENVALE_BENCHMARKS_WELCOME_MOMENT_H

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace wrenvale::benchmark {

/// Nanoseconds of the clock that all processes share.
inline long long now() {
  return std::chrono::steady_clock::now().time_since_epoch().count();
}

/// Prints how long it took since `asked`, and since `started` (as text, from whoever started the
/// process), in milliseconds.
inline void printShown(long long asked, const char* started) {
  const auto shown = now();
  std::printf("shown %.2f %.2f\n", static_cast<double>(shown - asked) / 1e6,
              static_cast<double>(shown - std::atoll(started)) / 1e6);
  std::fflush(stdout);
}

/// Prints the process's memory that is no file's, in MiB: the engine's code is not in it.
inline void printMemory(const char* when) {
  std::FILE* status = std::fopen("/proc/self/status", "r");
  char line[256];
  while (status && std::fgets(line, sizeof line, status))
    if (std::strncmp(line, "RssAnon:", 8) == 0)
      std::printf("memory %s %.1f\n", when, std::atof(line + 8) / 1024);
  if (status) std::fclose(status);
  std::fflush(stdout);
}

} // namespace wrenvale::benchmark

#endif
