// A program that is run to its end, and what it leaves behind.

#ifndef WRENVALE_BENCHMARKS_WELCOME_PROGRAM_H
#define WRENVALE_BENCHMARKS_WELCOME_PROGRAM_H

#include <string>
#include <vector>

namespace wrenvale::benchmark {

struct Ended {
  bool well = false;          ///< with status 0
  std::string output;         ///< what it printed
  bool leftProcesses = false; ///< some of its own are still there two seconds after its end
  std::vector<std::string>
      files; ///< that are new in its folder for temporary files or in shared memory
};

/// Runs the program with the start of the process, in nanoseconds, before its arguments. Its
/// settings and temporary files are in a folder of its own, which is removed.
Ended run(const std::string& program, const std::string& arguments);

} // namespace wrenvale::benchmark

#endif
