// Downloads an address again and again with nothing but the HTTP library. Prints the median time in
// milliseconds of a download after the first one.

#include <cstdio>

#include <curl/curl.h>

#include "benchmarks/Figures.h"

namespace {

std::size_t drop(char*, std::size_t size, std::size_t count, void*) {
  return size * count;
}

void download(const char* address) {
  CURL* handle = curl_easy_init();
  curl_easy_setopt(handle, CURLOPT_URL, address);
  curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, drop);
  if (curl_easy_perform(handle) != CURLE_OK) std::exit(1);
  curl_easy_cleanup(handle);
}

} // namespace

int main(int, char** argv) {
  using namespace wrenvale::benchmark;
  curl_global_init(CURL_GLOBAL_ALL);
  download(argv[1]);
  const auto once = [&] { download(argv[1]); };
  std::printf("%.4f\n", timesInTurns(30, once, [] {}).ours / 1e3);
}
