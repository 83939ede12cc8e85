// The service's work at launch and in the background after it, once in a process of its own.
//
// usage: benchmark-service FOLDER   (for the settings; removed by the caller)

#include <csignal>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>

#include <QApplication>

#include "benchmarks/Figures.h"
#include "benchmarks/Framework.h"
#include "core/PersistedKeys.h"
#include "tests/acceptance/VendorServer.h"

namespace {

using namespace wrenvale;
using namespace wrenvale::benchmark;

constexpr int kBuildsOnRecord = 200;
constexpr int kChecks = 30;

// Each download finds a generation that is to be stored.
[[noreturn]] void serve(int ready) {
  prctl(PR_SET_PDEATHSIG, SIGTERM);
  std::atomic<int> generation = 0;
  const tests::VendorServer server([&generation](const auto&, auto& response) {
    response.set_content(R"([{"bundle_id": "com.example.benchmark", "reset_number": )" +
                             std::to_string(++generation) +
                             R"(, "min_build_number": 1, "max_build_number": 5000}])",
                         "application/json");
  });
  [[maybe_unused]] const auto written = write(ready, "!", 1);
  for (;;)
    pause();
}

pid_t startServer() {
  int ends[2];
  if (pipe(ends) != 0) std::exit(1);
  const pid_t server = fork();
  if (server == 0) serve(ends[1]);
  close(ends[1]);
  char byte = 0;
  if (read(ends[0], &byte, 1) != 1) std::exit(1);
  close(ends[0]);
  return server;
}

double cpuMilliseconds(int who) {
  rusage usage{};
  getrusage(who, &usage);
  return static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) * 1e3 +
         static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e3;
}

double backgroundCPU() {
  return cpuMilliseconds(RUSAGE_SELF) - cpuMilliseconds(RUSAGE_THREAD);
}

// One check, from asking for it to the generation in the settings, in milliseconds.
template <class Begin>
double checkTakes(Framework& framework, Begin begin) {
  const auto id = framework.userDefaults.addObserver(keys::kRecommenderResetNumber,
                                                     [] { QCoreApplication::exit(); });
  begin();
  const auto start = now();
  QApplication::exec();
  const auto took = static_cast<double>(now() - start) / 1e6;
  framework.userDefaults.removeObserver(id);
  return took;
}

double bareClientMilliseconds() {
  double milliseconds = 0;
  std::FILE* client = popen(BARE_CLIENT " " VENDOR_BASE "/store/reset.json", "r");
  if (!client || std::fscanf(client, "%lf", &milliseconds) != 1) std::exit(1);
  pclose(client);
  return milliseconds;
}

// This build was asked about and disliked, and so were those before it.
Value ratings(int count) {
  Value::Dictionary builds;
  for (std::int64_t build = kBuild; build > kBuild - count; --build)
    builds[std::to_string(build)] =
        Value::Array{Value::Dictionary{{"History", Value::Array{std::int64_t{2}, std::int64_t{0}}},
                                       {"Triggered", true},
                                       {"Date", Date{}}}};
  return builds;
}

} // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  const pid_t server = startServer();
  QApplication application(argc, argv);
  auto& framework = *new Framework(argv[1]);
  framework.userDefaults.setObject(ratings(kBuildsOnRecord), keys::kVersionRatings);
  framework.userDefaults.synchronize();

  double launch = 0, before = 0;
  const double cold = checkTakes(framework, [&] {
    framework.queues.start();
    before = backgroundCPU();
    const auto start = now();
    framework.service.launchHandler();
    launch = static_cast<double>(now() - start) / 1e3;
  });
  say("launch.work", 0, {launch, 0});
  say("reset.cpu", 0, {backgroundCPU() - before, 0});
  say("reset.first", 0, {cold, bareClientMilliseconds()});

  std::vector<double> checks;
  for (int i = 0; i < kChecks; ++i)
    checks.push_back(checkTakes(framework, [&] { framework.service.reset(); }));
  say("reset.loaded", 0, {median(checks), bareClientMilliseconds()});

  for (const int builds : {1, 20, kBuildsOnRecord, 900}) {
    framework.userDefaults.setObject(ratings(builds), keys::kVersionRatings);
    framework.userDefaults.synchronize();
    const auto ask = [&] { framework.service.triggerRatingWithModalAlert(); };
    say("trigger.declines", static_cast<std::size_t>(builds), timesInTurns(2000, ask, [] {}));
  }
  kill(server, SIGTERM);
  waitpid(server, nullptr, 0);
  std::_Exit(0);
}
