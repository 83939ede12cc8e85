// Three ways from the text of a document to an answer, to be timed side by side.

#ifndef WRENVALE_BENCHMARKS_RECOMMEND_PIPELINES_H
#define WRENVALE_BENCHMARKS_RECOMMEND_PIPELINES_H

#include <cstddef>
#include <string>

namespace wrenvale::benchmark {

/// Each takes the text as a download hands it over and answers with the length of the final list,
/// so that the two which make one can be checked against each other.
using Pipeline = std::size_t (*)(std::string text);

/// The framework: parse, gate, build, rank, one per group.
std::size_t framework(std::string text);

/// The same work through nlohmann-json into structures.
std::size_t comparison(std::string text);

/// The framework's parser alone, without reading anything; answers 0.
std::size_t bareParse(std::string text);

} // namespace wrenvale::benchmark

#endif
