// A bare host that says how long it took to the end of its event loop's first turn. Built with and
// without the framework; nothing in it differs but that.
//
// Arguments: the monotonic time in nanoseconds at which the process was started; "window" for a
// host that shows one. Prints the elapsed nanoseconds and the resident memory in KiB.

#include <ctime>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>

#include <QApplication>
#include <QLabel>
#include <QTimer>

namespace {

long long now() {
  timespec time{};
  clock_gettime(CLOCK_MONOTONIC, &time);
  return time.tv_sec * 1'000'000'000LL + time.tv_nsec;
}

long residentKiB() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);)
    if (line.rfind("VmRSS:", 0) == 0) return std::atol(line.c_str() + 6);
  return 0;
}

} // namespace

int main(int argc, char** argv) {
  const long long started = argc > 1 ? std::atoll(argv[1]) : now();
  QApplication application(argc, argv);
  QLabel label("Some text in the window");
  if (argc > 2 && std::strcmp(argv[2], "window") == 0) label.show();
  // The second turn, so that what the framework does in the first is measured too. The end of the
  // process is not.
  QTimer::singleShot(0, [started] {
    QTimer::singleShot(0, [started] {
      std::printf("%lld %ld\n", now() - started, residentKiB());
      std::fflush(stdout);
      std::_Exit(0);
    });
  });
  return application.exec();
}
