// Time and peak memory from a downloaded document to the final list.
//
// Says, for each number of candidates, the median time and the peak memory of the framework beside
// the same work through nlohmann-json, and beside the bare parse, each in a process of its own. The
// peak is the whole process with the document in it. Fails when the two lists differ.
//
// usage: recommend_benchmark [CANDIDATES...]
//        recommend_benchmark --document CANDIDATES   (prints the document)

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <vector>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "benchmarks/Figures.h"
#include "benchmarks/recommend/Documents.h"
#include "benchmarks/recommend/Pipelines.h"

namespace {

using namespace wrenvale::benchmark;

// A copy that came together piece by piece, as a download does, and so has some room at its end.
std::string downloaded(const std::string& text) {
  constexpr std::size_t kPiece = 16 * 1024;
  std::string copy;
  for (std::size_t begin = 0; begin < text.size(); begin += kPiece)
    copy.append(text, begin, kPiece);
  return copy;
}

double runTakes(Pipeline run, const std::string& text) {
  auto copy = downloaded(text);
  const auto once = [&] { run(std::move(copy)); };
  return microsecondsOf(once);
}

double peakOfProcess() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) * 1024;
}

struct Measure {
  double microseconds = 0;  ///< the median of many runs
  double peak = 0;          ///< of one run, in bytes: the whole process, the document included
  std::size_t document = 0; ///< in bytes
  std::size_t answer = 0;
};

// One run first, for the peak: the text is handed over, so that it is counted once.
Measure measure(std::size_t candidates, Pipeline run) {
  Measure result;
  auto text = recommenderDocument(candidates);
  result.document = text.size();
  result.answer = run(std::move(text));
  result.peak = peakOfProcess();
  text = recommenderDocument(candidates);
  std::vector<double> times(std::clamp<std::size_t>(1000000 / candidates, 9, 3000));
  for (auto& time : times)
    time = runTakes(run, text);
  result.microseconds = median(std::move(times));
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
  const auto ours = measureApart(candidates, framework);
  const auto theirs = measureApart(candidates, comparison);
  const auto parse = measureApart(candidates, bareParse);
  const auto document = static_cast<double>(ours.document);
  say("recommend.list", candidates, {ours.microseconds, theirs.microseconds});
  say("recommend.parse", candidates, {ours.microseconds, parse.microseconds});
  say("recommend.memory", candidates, {ours.peak / document, parse.peak / document});
  if (ours.answer > 0 && ours.answer == theirs.answer) return true;
  std::fprintf(stderr, "the lists differ: %zu and %zu entries\n", ours.answer, theirs.answer);
  return false;
}

} // namespace

int main(int argc, char** argv) {
  if (argc == 3 && argv[1] == std::string_view("--document"))
    return std::puts(recommenderDocument(std::strtoul(argv[2], nullptr, 10)).c_str()) < 0;
  std::vector<std::size_t> sizes;
  for (int i = 1; i < argc; ++i)
    sizes.push_back(std::strtoul(argv[i], nullptr, 10));
  if (sizes.empty()) sizes = {10, 1000, 100000};
  bool agree = true;
  for (const auto candidates : sizes)
    agree &= compare(std::max<std::size_t>(candidates, 1));
  return agree ? 0 : 1;
}
