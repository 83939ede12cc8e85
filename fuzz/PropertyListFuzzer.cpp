// Feeds arbitrary bytes to the reader of property lists. What is understood must be writable, and
// understood the same way again.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "desktop/linux/plist/PropertyList.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace wrenvale::platform;
  const auto value = valueFromPropertyList({reinterpret_cast<const char*>(data), size});
  if (!value) return 0;
  const auto once = propertyListFromValue(*value);
  if (!once) std::abort();
  const auto again = valueFromPropertyList(*once);
  if (!again || propertyListFromValue(*again) != once) std::abort();
  return 0;
}
