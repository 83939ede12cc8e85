// The maker's kit as a process.

#ifndef WRENVALE_TESTS_TOOLS_KITPROCESS_H
#define WRENVALE_TESTS_TOOLS_KITPROCESS_H

#include <sys/wait.h>

#include <csignal>
#include <cstdio>
#include <string>
#include <utility>

namespace wrenvale::tests {

/// `wrenvale` with these arguments, which a shell reads. Ended at the latest when it goes out of
/// scope.
class KitProcess {
public:
  explicit KitProcess(const std::string& arguments)
      : output_(popen(("echo $$; exec " WRENVALE_KIT " " + arguments + " 2>&1").c_str(), "re"))
      , process_(std::stoi(line())) {}
  KitProcess(const KitProcess&) = delete;
  KitProcess& operator=(const KitProcess&) = delete;
  ~KitProcess() {
    if (!output_) return;
    end(SIGKILL);
    status();
  }

  /// The next line of what it prints, errors among it, as soon as it is there, without its end; ""
  /// once it has ended.
  std::string line() { return until('\n'); }
  /// All that it prints until it ends.
  std::string rest() { return until(EOF); }
  /// The port that its next line names.
  int port() {
    const auto text = line();
    return std::stoi(text.substr(text.rfind(':') + 1));
  }

  void end(int signal) const { kill(process_, signal); }
  /// Its exit status, once it has ended; the last call.
  int status() { return WEXITSTATUS(pclose(std::exchange(output_, nullptr))); }

private:
  std::string until(int end) {
    std::string text;
    for (int c; (c = std::getc(output_)) != EOF && c != end;)
      text += static_cast<char>(c);
    return text;
  }

  std::FILE* output_;
  const pid_t process_;
};

struct KitRun {
  std::string text;
  int status = -1;
};

/// The kit, run to its end.
inline KitRun runKit(const std::string& arguments) {
  KitProcess kit(arguments);
  auto text = kit.rest();
  return {std::move(text), kit.status()};
}

} // namespace wrenvale::tests

#endif
