// The maker's kit, run to its end.

#ifndef WRENVALE_TESTS_TOOLS_KITRUN_H
#define WRENVALE_TESTS_TOOLS_KITRUN_H

#include <sys/wait.h>

#include <cstdio>
#include <string>

namespace wrenvale::tests {

struct KitRun {
  std::string text; ///< standard output and standard error
  int status = -1;
};

/// `arguments` are read by a shell.
inline KitRun runKit(const std::string& arguments) {
  KitRun run;
  std::FILE* pipe = popen((WRENVALE_KIT " " + arguments + " 2>&1").c_str(), "r");
  for (int c; (c = std::getc(pipe)) != EOF;)
    run.text += static_cast<char>(c);
  run.status = WEXITSTATUS(pclose(pipe));
  return run;
}

} // namespace wrenvale::tests

#endif
