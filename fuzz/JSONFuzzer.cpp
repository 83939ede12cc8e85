// Any text at all, read as a JSON document: what the reader returns must be readable to the last
// value.

#include <cstdint>
#include <cstdlib>
#include <string>

#include "desktop/net/json/JSONReader.h"

namespace {

using wrenvale::Value;

void check(bool holds) {
  if (!holds) std::abort();
}

void walk(const Value& value) {
  for (std::size_t i = 0; i < value.size(); ++i) {
    const auto child = value.at(i);
    check(!value.isDictionary() || value.find(value.keyAt(i)) == child);
    walk(child);
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace wrenvale::platform;
  const std::string text(reinterpret_cast<const char*>(data), size);
  if (const auto document = JSONReader().JSONObjectWithData(text)) walk(*document);
  return 0;
}
