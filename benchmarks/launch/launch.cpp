// What the framework adds to a host's launch: the same host with and without it, started in turns,
// from the start of the process to the end of its event loop's first turn. Says medians, and the
// median of the paired differences, of time and memory, and the instructions that callgrind counts.
//
// usage: benchmark-launch [pairs]   (default 100; callgrind is left out when it is not installed)

#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

struct Sample {
  double milliseconds = 0;
  double residentKiB = 0;
};

struct Variant {
  const char* what;
  const char* program;
};

const Variant kBare = {"without the framework", BARE_HOST};
const Variant kVariants[] = {{"with it, font left out", NO_FONT_HOST}, {"with it", FRAMEWORK_HOST}};

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values.empty() ? 0 : values[values.size() / 2];
}

std::string outputOf(const std::string& command) {
  std::string text;
  FILE* pipe = popen(command.c_str(), "r");
  for (int c = 0; pipe && (c = std::fgetc(pipe)) != EOF;)
    text += static_cast<char>(c);
  if (pipe) pclose(pipe);
  return text;
}

// The start of the process is measured from just before fork, by the host itself.
Sample start(const char* program, const char* window) {
  int ends[2];
  if (pipe(ends) != 0) std::abort();
  timespec time{};
  clock_gettime(CLOCK_MONOTONIC, &time);
  const auto started = std::to_string(time.tv_sec * 1'000'000'000LL + time.tv_nsec);
  const pid_t process = vfork();
  if (process == 0) {
    dup2(ends[1], STDOUT_FILENO);
    execl(program, program, started.c_str(), window, nullptr);
    _exit(127);
  }
  close(ends[1]);
  char text[100] = {};
  const auto length = read(ends[0], text, sizeof text - 1);
  close(ends[0]);
  waitpid(process, nullptr, 0);
  Sample sample;
  if (length <= 0 || std::sscanf(text, "%lf %lf", &sample.milliseconds, &sample.residentKiB) != 2) {
    std::fprintf(stderr, "benchmark-launch: %s did not start\n", program);
    std::exit(1);
  }
  sample.milliseconds /= 1e6;
  return sample;
}

// A settings file of about 2 KB, as after some months of use.
void writeSettings(const fs::path& home) {
  const fs::path folder = home / "com.example.launchhost";
  fs::create_directories(folder);
  std::ofstream file(folder / "defaults.plist");
  file << "<plist version=\"1.0\"><dict><key>Recommender Last Version</key><integer>7</integer>";
  for (int i = 0; i < 40; ++i)
    file << "<key>setting " << i << "</key><string>value " << i << "</string>";
  file << "</dict></plist>";
}

void compare(const Variant& variant, const char* window, int pairs) {
  std::vector<double> bare, with, time, memory;
  for (int i = 0; i < pairs; ++i) {
    const bool bareFirst = i % 2 == 0;
    const Sample first = start(bareFirst ? kBare.program : variant.program, window);
    const Sample second = start(bareFirst ? variant.program : kBare.program, window);
    const Sample& b = bareFirst ? first : second;
    const Sample& w = bareFirst ? second : first;
    bare.push_back(b.milliseconds);
    with.push_back(w.milliseconds);
    time.push_back(w.milliseconds - b.milliseconds);
    memory.push_back(w.residentKiB - b.residentKiB);
  }
  std::printf("%-8s %-24s %7.2f ms, without %7.2f ms: added %5.2f ms, %5.0f KiB\n", window,
              variant.what, median(with), median(bare), median(time), median(memory));
}

double instructions(const char* program, const char* window) {
  const auto text =
      outputOf("valgrind --tool=callgrind --callgrind-out-file=/dev/null " + std::string(program) +
               " 0 " + window + " 2>&1 | sed -n 's/.*Collected : *//p'");
  return std::atof(text.c_str()) / 1e6;
}

void countInstructions(const char* window) {
  const double bare = instructions(kBare.program, window);
  for (const auto& variant : kVariants)
    std::printf("%-8s %-24s adds %.2f M instructions to %.2f M\n", window, variant.what,
                instructions(variant.program, window) - bare, bare);
}

} // namespace

int main(int argc, char** argv) {
  const int pairs = argc > 1 ? std::atoi(argv[1]) : 100;
  std::string pattern = fs::temp_directory_path() / "wrenvale-launch-XXXXXX";
  const fs::path home = mkdtemp(pattern.data());
  setenv("XDG_CONFIG_HOME", home.c_str(), 1);
  setenv("XDG_RUNTIME_DIR", home.c_str(), 1);
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  writeSettings(home);
  for (const char* window : {"plain", "window"}) {
    start(kBare.program, window); // the file cache is warm for both from here on
    for (const auto& variant : kVariants) {
      start(variant.program, window);
      compare(variant, window, pairs);
    }
    if (std::system("command -v valgrind >/dev/null") == 0) countInstructions(window);
  }
  fs::remove_all(home);
}
