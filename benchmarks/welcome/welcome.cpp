// What the welcome window costs: from triggerWelcomeWindow() to the page's showWindow(), beside two
// programs that show the same page with the web engine alone, which one loads when it is asked for
// the page, as the framework does, and the other is linked to; a call of the page's; a list of
// 1,000 candidates handed to it; the memory of a host that opened the window again and again; and
// what is left when the host has ended. The programs are started in turns, the server is on the
// loopback.
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

#include "benchmarks/Figures.h"
#include "benchmarks/recommend/Documents.h"
#include "benchmarks/welcome/Program.h"
#include "tests/acceptance/VendorServer.h"

namespace {

using namespace wrenvale::benchmark;

constexpr std::size_t kCandidates = 1000;
const std::string kPageAddress = "http://127.0.0.1:" + std::to_string(VENDOR_PORT) + "/page";

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

// Takes its list some time after it was shown.
constexpr const char* kListPage = R"(<!DOCTYPE html><title>list</title><script>
  window.setRecommendations = text => fetch("/report?" + JSON.parse(text).length);
  window.Recommender.showWindow();
  setTimeout(() => window.Recommender.ready(), 500);
</script>)";

struct Report {
  std::mutex mutex;
  std::string text;
};

// What the server has: one of the two pages, and the list for the second.
struct Site {
  std::string page = kPage;
  std::string recommendations = "[]";
};

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
  for (int i = 0; i < rounds; ++i) {
    onDemand.add(runCleanly(ON_DEMAND_PROGRAM, kPageAddress));
    framework.add(runCleanly(FRAMEWORK_HOST, "once"));
    linked.add(runCleanly(LINKED_PROGRAM, kPageAddress));
  }
  say("welcome.shown", 0, {median(framework.asked), median(onDemand.asked)});
  // These have loaded the engine, and set up OpenGL for it, before they can be asked.
  say("welcome.linked", 0, {median(framework.started), median(linked.started)});
}

void timeCalls(Report& report) {
  const auto busy = numbersAfter("busy", runCleanly(FRAMEWORK_HOST, "stay").output);
  const auto bare = numbersAfter("busy", runCleanly(ON_DEMAND_PROGRAM, kPageAddress).output);
  if (busy.size() != 2 || bare.size() != 1) giveUp("a program told no pauses");
  say("welcome.busy", 0, {busy[0], bare[0]});
  const std::lock_guard lock(report.mutex);
  double half = 0, most = 0;
  if (std::sscanf(report.text.c_str(), "%lf&%lf", &half, &most) != 2)
    giveUp("the page told no times");
  say("bridge.call", 0, {half, 0});
  say("bridge.call99", 0, {most, 0});
}

void handList(Site& site, Report& report) {
  site = {kListPage, recommenderDocument(kCandidates)};
  const auto busy = numbersAfter("busy", runCleanly(FRAMEWORK_HOST, "stay").output);
  site = {};
  const std::lock_guard lock(report.mutex);
  if (busy.size() != 2 || std::atoi(report.text.c_str()) < static_cast<int>(kCandidates) / 2)
    giveUp("the page got no list");
  say("bridge.list", kCandidates, {busy[1], 0});
}

void watchMemory() {
  const auto ended = runCleanly(FRAMEWORK_HOST, "reopen");
  const auto before = numbersAfter("memory before", ended.output);
  const auto first = numbersAfter("memory first", ended.output);
  const auto last = numbersAfter("memory last", ended.output);
  if (before.empty() || first.empty() || last.empty()) giveUp("the host told no memory");
  say("welcome.memory", 1, {first[0], before[0]});
  say("welcome.memory", 21, {last[0], before[0]});
}

} // namespace

int main(int argc, char** argv) {
  const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 15;
  if (geteuid() == 0) setenv("QTWEBENGINE_DISABLE_SANDBOX", "1", 0);
  Report report;
  Site site;
  const wrenvale::tests::VendorServer server([&](const auto& request, auto& response) {
    if (request.path == "/report") {
      const std::lock_guard lock(report.mutex);
      report.text = request.target.substr(request.target.find('?') + 1);
    } else if (request.path.find("recommender_") != std::string::npos) {
      response.set_content(site.recommendations, "application/json");
    } else if (request.path.ends_with(".json")) {
      response.set_content("[]", "application/json");
    } else {
      response.set_content(site.page, "text/html");
    }
  });
  compare(rounds);
  timeCalls(report);
  handList(site, report);
  watchMemory();
  return 0;
}
