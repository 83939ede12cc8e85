// A host that says what its launch took: to the start of its event loop, and to the end of the
// loop's second turn, so that what the framework does in the first is in it. The end of the process
// is not. Built with the framework, without it, and with an empty library in its place; nothing in
// it differs but that.
//
// usage: launch-host STARTED plain|window   (the process's start in nanoseconds; whether it shows
// one)
//
// Prints milliseconds, resident memory in KiB and, as of the loop's start, the threads, the calls
// of fsync() and how many heavy libraries are mapped.

#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>

#include <QApplication>
#include <QLabel>
#include <QTimer>

#include "benchmarks/Figures.h"

namespace {

std::atomic<int> fsyncs = 0;

long statusNumber(const char* name) {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);)
    if (line.rfind(name, 0) == 0) return std::atol(line.c_str() + std::strlen(name));
  return 0;
}

int heavyLibraries() {
  std::ifstream maps("/proc/self/maps");
  int heavy = 0;
  for (std::string line; std::getline(maps, line);)
    for (const char* name :
         {"libcurl", "libcrypto", "libssl", "libsimdjson", "WebEngine", "wrenvale-"})
      heavy += line.find(name) != std::string::npos && line.find(" 00000000 ") != std::string::npos;
  return heavy;
}

} // namespace

// Take the C library's place, for every library of the process.
extern "C" int fsync(int file) {
  ++fsyncs;
  return static_cast<int>(syscall(SYS_fsync, file));
}
extern "C" int fdatasync(int file) {
  ++fsyncs;
  return static_cast<int>(syscall(SYS_fdatasync, file));
}

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const long long started = std::atoll(argv[1]);
  QApplication application(argc, argv);
  QLabel label("Some text in the window");
  if (std::strcmp(argv[2], "window") == 0) label.show();
  const long threads = statusNumber("Threads:");
  const int heavy = heavyLibraries();
  const int synced = fsyncs;
  QTimer::singleShot(0, [=] {
    QTimer::singleShot(0, [=] {
      const double milliseconds = static_cast<double>(wrenvale::benchmark::now() - started) / 1e6;
      std::printf("%.4f %ld %ld %d %d\n", milliseconds, statusNumber("VmRSS:"), threads, synced,
                  heavy);
      std::fflush(stdout);
      std::_Exit(0);
    });
  });
  return application.exec();
}
