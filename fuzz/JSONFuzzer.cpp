// Any text at all, read as a JSON document: the reader must agree with the grammar on whether it is
// one, and what it returns must be readable to the last value.

#include <cstdint>
#include <cstdlib>
#include <string>

#include "desktop/net/json/JSONReader.h"
#include "desktop/net/json/JSONScanner.h"

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
  const auto result = JSONReader().JSONObjectWithData(text);
  check(result.errorOffset <= size);
  check(result.object.has_value() == result.error.empty());
  if (result.object) walk(*result.object);

  const auto begin = text.starts_with("\xEF\xBB\xBF") ? 3 : 0;
  const auto fault = JSONScanner(std::string_view(text).substr(begin), [](std::string_view) {
                       return true;
                     }).firstFault();
  check(!(result.object && fault));
  check(result.object || fault || result.error == "a number is too large");
  return 0;
}
