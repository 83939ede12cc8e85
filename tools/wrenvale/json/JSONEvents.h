// A JSON text, token by token.

#ifndef WRENVALE_TOOLS_WRENVALE_JSON_JSONEVENTS_H
#define WRENVALE_TOOLS_WRENVALE_JSON_JSONEVENTS_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include <nlohmann/json.hpp>

#include "base/Value.h"

namespace wrenvale::kit {

struct JSONFault {
  std::string message; ///< for people
  std::size_t offset;  ///< in bytes
};

/// Told of what a text consists of. It takes what hosts take and nothing else: an array or a
/// dictionary, nested 512 deep at the most, with whole numbers of 64 bits.
class JSONEvents : private nlohmann::json_sax<nlohmann::json> {
public:
  /// Goes over the text once; says where it is no document. All events before the fault come.
  std::optional<JSONFault> read(std::string_view text);

protected:
  /// A value that is neither an array nor a dictionary.
  virtual void scalar(Value value) = 0;
  virtual void opens(bool isDictionary) = 0;
  virtual void closes() = 0;
  virtual void named(std::string key) = 0;

  /// Where the value or key that is being told of begins.
  std::size_t begin() const { return begin_; }

private:
  class Bytes;

  void beginToken();
  bool add(Value value);
  bool open(bool isDictionary);
  bool close();
  bool refuse(std::string message);

  bool null() override;
  bool boolean(bool value) override;
  bool number_integer(std::int64_t value) override;
  bool number_unsigned(std::uint64_t value) override;
  bool number_float(double value, const std::string& text) override;
  bool string(std::string& value) override;
  bool binary(nlohmann::json::binary_t&) override { return false; }
  bool start_object(std::size_t) override;
  bool key(std::string& name) override;
  bool end_object() override;
  bool start_array(std::size_t) override;
  bool end_array() override;
  bool parse_error(std::size_t position, const std::string& token,
                   const nlohmann::json::exception& error) override;

  std::string_view text_;
  std::size_t taken_ = 0; // bytes that the parser has taken
  std::size_t begin_ = 0;
  std::size_t end_ = 0; // of the last token
  std::size_t depth_ = 0;
  std::optional<JSONFault> fault_;
};

} // namespace wrenvale::kit

#endif
