#include <functional>
#include <random>

#include <simdjson.h>

#include "benchmarks/recommend/Documents.h"
#include "benchmarks/recommend/Pipelines.h"
#include "core/BuildConfiguration.h"
#include "core/Endpoints.h"
#include "desktop/net/json/JSONReader.h"
#include "recommend/KVXAppRecommendation.h"
#include "recommend/Ranking.h"
#include "recommend/RecommenderDocument.h"

namespace wrenvale::benchmark {

std::size_t framework(std::string text) {
  const Endpoints endpoints({.vendorBase = "http://vendor.example",
                             .storeHost = {},
                             .publicKey = {},
                             .vendorSiteName = {}});
  std::mt19937 random;
  const recommend::Context context{.iconBase = endpoints.icon(""),
                                   .host = {.bundleID = kHost, .bundleVersion = kBuild},
                                   .isInstalled = isInstalled,
                                   .purchaseRecord = [] { return false; },
                                   .purchases = [] { return Value(); },
                                   .random = std::ref(random)};
  auto parsed = platform::JSONReader().JSONObjectWithData(std::move(text));
  if (!parsed) return 0;
  const recommend::RecommenderDocument document(std::move(*parsed));
  const auto list = recommend::recommendations(document, context);
  return list ? list->size() : 0;
}

std::size_t bareParse(std::string text) {
  simdjson::dom::parser parser;
  simdjson::dom::element root;
  text.reserve(text.size() + simdjson::SIMDJSON_PADDING);
  return parser.parse(text).get(root) ? 1 : 0;
}

} // namespace wrenvale::benchmark
