// Time and memory as the two programs report them.

#ifndef WRENVALE_BENCHMARKS_WELCOME_MOMENT_H
#define WRENVALE_BENCHMARKS_WELCOME_MOMENT_H

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "benchmarks/Figures.h"

namespace wrenvale::benchmark {

/// Prints how long it took since `asked`, and since `started` (as text, from whoever started the
/// process), in milliseconds.
inline void printShown(long long asked, const char* started) {
  const auto shown = now();
  std::printf("shown %.2f %.2f\n", static_cast<double>(shown - asked) / 1e6,
              static_cast<double>(shown - std::atoll(started)) / 1e6);
  std::fflush(stdout);
}

/// Prints the memory that the process holds beside its mapped files, in MiB. The engine's code is
/// not in it, nor are the parts of its files that were written to as they were loaded.
inline void printMemory(const char* when) {
  std::ifstream mappings("/proc/self/smaps");
  bool isFile = false;
  long kibibytes = 0;
  for (std::string line; std::getline(mappings, line);) {
    unsigned long inode = 0;
    long held = 0;
    if (std::sscanf(line.c_str(), "%*x-%*x %*s %*x %*s %lu", &inode) == 1)
      isFile = inode != 0;
    else if (!isFile && std::sscanf(line.c_str(), "Rss: %ld", &held) == 1)
      kibibytes += held;
  }
  std::printf("memory %s %.1f\n", when, static_cast<double>(kibibytes) / 1024);
  std::fflush(stdout);
}

} // namespace wrenvale::benchmark

#endif
