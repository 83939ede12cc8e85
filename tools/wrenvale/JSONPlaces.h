// Where the values of a JSON document stand in its text.

#ifndef WRENVALE_TOOLS_JSONPLACES_H
#define WRENVALE_TOOLS_JSONPLACES_H

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace wrenvale::kit {

/// `pointer` and the key or index of one of its children, as a JSON Pointer (RFC 6901).
std::string childOf(const std::string& pointer, std::string_view key);
std::string childOf(const std::string& pointer, std::size_t index);

/// Finds values by their JSON Pointers; "" is the whole document.
class JSONPlaces {
public:
  /// Of a text that is a document to platform::JSONReader.
  explicit JSONPlaces(std::string_view text);

  /// The byte where the value begins, or the key in front of it when it has one. Of a key that
  /// stands twice, the last. 0 for a value that is not there.
  std::size_t offsetOf(const std::string& pointer) const;

  /// Every key that stood in its dictionary already.
  const std::vector<std::string>& repeated() const { return repeated_; }

private:
  std::map<std::string, std::size_t> offsets_;
  std::vector<std::string> repeated_;
};

} // namespace wrenvale::kit

#endif
