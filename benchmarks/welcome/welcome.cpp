// What the welcome window costs: from triggerWelcomeWindow() to the page's showWindow(), beside two
// programs that show the same page with the web engine alone, which one loads when it is asked for
// the page, as the framework does, and the other is linked to; a call of the page's; the
// memory of a host that opened the window again and again; and what is left when the host has
// ended. The programs are started in turns, the server is on the loopback.
//
// usage: benchmark-welcome [rounds]   (default 15)
//
// Exit status 1 when something cannot be measured, or when processes or files are left.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <sstream>
#include <string>
#include <vector>

#include <unistd.h>

#include "benchmarks/welcome/Program.h"
#include "tests/acceptance/VendorServer.h"

namespace {

using wrenvale::benchmark::Ended;
using wrenvale::benchmark::run;

// In the framework's window the page also times its calls, and reports to the server.
constexpr const char* kPage = R"(<!DOCTYPE html>
<html lang="en"><meta charset="utf-8"><title>loading</title>
<style>body { font: 16px sans-serif; columns: 2 } h2 { color: rebeccapurple }</style>
<body><h1>Welcome</h1>
<script>
  for (let i = 0; i < 60; ++i) {
    const part = document.createElement("section");
    part.innerHTML = `<h2>Part ${i}</h2><p>${"What is new in this version. ".repeat(12)}</p>`;
    document.body.append(part);
  }
  const host = window.Recommender;
  if (host) {
    host.ready();
    host.showWindow();
    setTimeout(() => {
      const times = [];
      for (let i = 0; i < 2000; ++i) {
        const start = performance.now();
        host.bundleVersion();
        times.push(performance.now() - start);
      }
      times.sort((a, b) => a - b);
      fetch("/report?" + times[1000] + "&" + times[1980]);
    }, 200);
  } else {
    document.title = "shown";
  }
</script>)";

struct Report {
  std::mutex mutex;
  std::string text;
};

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values.empty() ? 0 : values[values.size() / 2];
}

// The numbers of the line that begins with these words.
std::vector<double> numbersAfter(const std::string& words, const std::string& output) {
  std::vector<double> numbers;
  const auto at = output.find(words + " ");
  if (at == std::string::npos) return numbers;
  std::istringstream line(output.substr(at + words.size(), output.find('\n', at) - at));
  for (double number; line >> number;)
    numbers.push_back(number);
  return numbers;
}

[[noreturn]] void giveUp(const char* what) {
  std::fprintf(stderr, "benchmark-welcome: %s\n", what);
  std::exit(1);
}

// Everything a program leaves is a fault, whatever it was run for.
Ended runCleanly(const std::string& program, const std::string& arguments) {
  auto ended = run(program, arguments);
  if (!ended.well) giveUp("a program did not end well; is a web engine there, and may it start?");
  for (const auto& file : ended.files)
    std::fprintf(stderr, "left behind: %s\n", file.c_str());
  if (ended.leftProcesses) giveUp("a process is left");
  if (!ended.files.empty()) giveUp("files are left");
  return ended;
}

struct Times {
  std::vector<double> asked;   ///< milliseconds from asking to showing
  std::vector<double> started; ///< from the start of the process

  void add(const Ended& ended) {
    const auto shown = numbersAfter("shown", ended.output);
    if (shown.size() != 2) giveUp("a page was not shown");
    asked.push_back(shown[0]);
    started.push_back(shown[1]);
  }
};

void compare(int rounds) {
  Times framework, onDemand, linked;
  const auto page = "http://127.0.0.1:" + std::to_string(VENDOR_PORT) + "/page";
  for (int i = 0; i < rounds; ++i) {
    onDemand.add(runCleanly(ON_DEMAND_PROGRAM, page));
    framework.add(runCleanly(FRAMEWORK_HOST, "once"));
    linked.add(runCleanly(LINKED_PROGRAM, page));
  }
  const auto print = [](const char* what, const auto& ours, const auto& others) {
    std::printf("%-48s framework %6.1f ms, bare engine %6.1f ms: %.2f times\n", what, median(ours),
                median(others), median(ours) / median(others));
  };
  print("asked to shown, engine loaded then (at most 1.25)", framework.asked, onDemand.asked);
  // These have loaded the engine, and set up OpenGL for it, before they can be asked.
  print("asked to shown, engine linked to", framework.asked, linked.asked);
  print("start of the process to shown, engine linked to", framework.started, linked.started);
}

void timeCalls(Report& report) {
  runCleanly(FRAMEWORK_HOST, "stay");
  const std::lock_guard lock(report.mutex);
  double half = 0, most = 0;
  if (std::sscanf(report.text.c_str(), "%lf&%lf", &half, &most) != 2)
    giveUp("the page told no times");
  std::printf("a call of the page's: %.3f ms in the median (at most 0.5), %.3f ms in 99 of 100\n",
              half, most);
}

void watchMemory() {
  const auto ended = runCleanly(FRAMEWORK_HOST, "reopen");
  const auto before = numbersAfter("memory before", ended.output);
  const auto first = numbersAfter("memory first", ended.output);
  const auto last = numbersAfter("memory last", ended.output);
  if (before.empty() || first.empty() || last.empty()) giveUp("the host told no memory");
  std::printf(
      "memory beside mapped files: %.1f MiB before, %.1f after one window, %.1f after twenty "
      "more (at most 9.5 more than before)\n",
      before[0], first[0], last[0]);
}

} // namespace

int main(int argc, char** argv) {
  const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 15;
  if (geteuid() == 0) setenv("QTWEBENGINE_DISABLE_SANDBOX", "1", 0);
  Report report;
  const wrenvale::tests::VendorServer server([&report](const auto& request, auto& response) {
    if (request.path == "/report") {
      const std::lock_guard lock(report.mutex);
      report.text = request.target.substr(request.target.find('?') + 1);
    } else if (request.path.ends_with(".json")) {
      response.set_content("[]", "application/json");
    } else {
      response.set_content(kPage, "text/html");
    }
  });
  compare(rounds);
  timeCalls(report);
  watchMemory();
  std::printf("no process and no file was left by any of %d programs\n", 3 * rounds + 2);
  return 0;
}
