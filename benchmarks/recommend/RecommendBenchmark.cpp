// Time and peak memory from a downloaded document to the final list.
//
// Prints, for 10, 1,000 and 100,000 candidates, the median time and the peak memory of the
// framework, of the same work through nlohmann-json and of the bare parse, each in a process of its
// own. The peak is the whole process with the document in it, and what the work added to it. Fails
// when the two lists differ.
//
// Usage: recommend_benchmark [candidates...]

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "benchmarks/recommend/Documents.h"
#include "benchmarks/recommend/Pipelines.h"

namespace {

using namespace wrenvale::benchmark;
using Seconds = std::chrono::duration<double>;

constexpr struct {
  const char* name;
  Pipeline run;
} kPipelines[] = {{"wrenvale", framework}, {"nlohmann", comparison}, {"parse only", bareParse}};
constexpr std::size_t kCount = std::size(kPipelines);

// A copy that came together piece by piece, as a download does, and so has some room at its end.
std::string downloaded(const std::string& text) {
  constexpr std::size_t kPiece = 16 * 1024;
  std::string copy;
  for (std::size_t begin = 0; begin < text.size(); begin += kPiece)
    copy.append(text, begin, kPiece);
  return copy;
}

double secondsOf(Pipeline run, const std::string& text) {
  auto copy = downloaded(text);
  const auto start = std::chrono::steady_clock::now();
  run(std::move(copy));
  return Seconds(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> values) {
  std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
  return values[values.size() / 2];
}

double peakOfProcess() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) * 1024;
}

struct Measure {
  double seconds = 0;       ///< the median of many runs
  double peak = 0;          ///< of one run, in bytes: the whole process, the document included
  double added = 0;         ///< by which that is above the process before the run, in bytes
  std::size_t document = 0; ///< in bytes
  std::size_t answer = 0;
};

// One run first, for the peak: the text is handed over, so that it is counted once.
Measure measure(std::size_t candidates, Pipeline run) {
  Measure result;
  auto text = recommenderDocument(candidates);
  result.document = text.size();
  const double before = peakOfProcess();
  result.answer = run(std::move(text));
  result.peak = peakOfProcess();
  result.added = result.peak - before;
  text = recommenderDocument(candidates);
  std::vector<double> seconds(std::clamp<std::size_t>(1000000 / candidates, 9, 3000));
  for (auto& value : seconds)
    value = secondsOf(run, text);
  result.seconds = median(std::move(seconds));
  return result;
}

// In a process of its own, so that no pipeline runs in the heap that another one left.
Measure measureApart(std::size_t candidates, Pipeline run) {
  Measure result;
  int ends[2];
  if (pipe(ends) != 0) return result;
  const pid_t child = fork();
  if (child == 0) {
    const auto measured = measure(candidates, run);
    _exit(write(ends[1], &measured, sizeof measured) == sizeof measured ? 0 : 1);
  }
  close(ends[1]);
  if (read(ends[0], &result, sizeof result) != sizeof result) result = {};
  close(ends[0]);
  waitpid(child, nullptr, 0);
  return result;
}

bool compare(std::size_t candidates) {
  Measure measured[kCount];
  for (std::size_t i = 0; i < kCount; ++i) {
    measured[i] = measureApart(candidates, kPipelines[i].run);
    const auto document = static_cast<double>(measured[i].document);
    std::printf("%9zu candidates, %8.0f KB  %-10s %12.1f us %8.1f MB peak (%.2f documents, %.2f "
                "beside the text)\n",
                candidates, document / 1e3, kPipelines[i].name, measured[i].seconds * 1e6,
                measured[i].peak / 1e6, measured[i].peak / document, measured[i].added / document);
  }
  std::printf("%9zu candidates: nlohmann takes %.1f times as long\n", candidates,
              measured[1].seconds / measured[0].seconds);
  if (measured[0].answer > 0 && measured[0].answer == measured[1].answer) return true;
  std::fprintf(stderr, "the lists differ: %zu and %zu entries\n", measured[0].answer,
               measured[1].answer);
  return false;
}

} // namespace

int main(int argc, char** argv) {
  std::vector<std::size_t> sizes;
  for (int i = 1; i < argc; ++i)
    sizes.push_back(std::strtoul(argv[i], nullptr, 10));
  if (sizes.empty()) sizes = {10, 1000, 100000};
  bool agree = true;
  for (const auto candidates : sizes)
    agree &= compare(std::max<std::size_t>(candidates, 1));
  return agree ? 0 : 1;
}
