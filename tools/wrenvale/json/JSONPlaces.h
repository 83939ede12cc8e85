// Where the values of a JSON document stand in its text.

#ifndef WRENVALE_TOOLS_WRENVALE_JSON_JSONPLACES_H
#define WRENVALE_TOOLS_WRENVALE_JSON_JSONPLACES_H

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace wrenvale::kit {

/// `pointer` and the key or index of one of its children, as a JSON Pointer (RFC 6901).
std::string childOf(const std::string& pointer, std::string_view key);
std::string childOf(const std::string& pointer, std::size_t index);

/// Finds some values by their JSON Pointers ("" is the whole document), and all repeated keys.
class JSONPlaces {
public:
  /// Goes once over a text that readJSON() takes.
  JSONPlaces(std::string_view text, const std::vector<std::string>& pointers);

  /// The byte where the value begins, or the key in front of it when it has one. Of a key that
  /// stands twice, the last. 0 for a value that is not there, or that the constructor was not
  /// given.
  std::size_t offsetOf(const std::string& pointer) const;

  /// The byte of every key that stood in its dictionary already, in ascending order.
  const std::vector<std::size_t>& repeated() const { return repeated_; }

private:
  std::unordered_map<std::string, std::size_t> offsets_;
  std::vector<std::size_t> repeated_;
};

} // namespace wrenvale::kit

#endif
