// A running `wrenvale serve`.

#ifndef WRENVALE_TESTS_TOOLS_SERVEPROCESS_H
#define WRENVALE_TESTS_TOOLS_SERVEPROCESS_H

#include <sys/types.h>

#include <cstdio>
#include <string>
#include <vector>

namespace wrenvale::tests {

/// Ended and waited for at the latest when it goes out of scope.
class ServeProcess {
public:
  explicit ServeProcess(std::vector<std::string> arguments);
  ServeProcess(const ServeProcess&) = delete;
  ServeProcess& operator=(const ServeProcess&) = delete;
  ~ServeProcess();

  /// The next line of what it prints, errors among it, as soon as it is there, without its end; ""
  /// once it has ended.
  std::string line();

  /// The port that its first line, which this takes, names.
  int port();

  /// Sends the signal; the exit status, or -1 when a signal ended it.
  int end(int signal);
  /// Waits for it to end by itself.
  int status();

private:
  pid_t process_ = -1;
  std::FILE* output_ = nullptr;
};

} // namespace wrenvale::tests

#endif
