// Recommender documents of any size, always the same for the same size.

#ifndef WRENVALE_BENCHMARKS_RECOMMEND_DOCUMENTS_H
#define WRENVALE_BENCHMARKS_RECOMMEND_DOCUMENTS_H

#include <cstddef>
#include <string>
#include <string_view>

namespace wrenvale::benchmark {

inline constexpr const char* kHost = "com.example.phototool";
inline constexpr int kBuild = 1204;

/// A document for kHost with this many candidates of 15 keys and 3 dependencies each, about 900
/// bytes a candidate. Every eighth candidate belongs to a group of up to sixteen.
std::string recommenderDocument(std::size_t candidates);

/// The applications that count as installed: the host and some of those that the document names.
bool isInstalled(std::string_view identifier);

} // namespace wrenvale::benchmark

#endif
