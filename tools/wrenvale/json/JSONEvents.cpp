#include "tools/wrenvale/json/JSONEvents.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

namespace wrenvale::kit {

namespace {

// As the framework's own reader has it (platform/JSONSerialization.h).
constexpr std::size_t kMostOpen = 512;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kBetweenTokens = " \t\r\n,:";

// The parser says "parse error at line 1, column 4: syntax error while parsing value - unexpected
// ']'; last read: '[1,]'; expected '[', '{', or a literal".
std::string essenceOf(const std::string& message) {
  const auto fault = message.find(" - ");
  if (fault == std::string::npos) return message;
  auto essence = message.substr(fault + 3, message.find(';', fault) - fault - 3);
  const auto expected = message.rfind("; expected ");
  return expected == std::string::npos ? essence : essence + message.substr(expected);
}

} // namespace

// The text's bytes, counted as they are taken.
class JSONEvents::Bytes {
public:
  using iterator_category = std::input_iterator_tag;
  using value_type = char;
  using difference_type = std::ptrdiff_t;
  using pointer = const char*;
  using reference = const char&;

  Bytes(const char* at, std::size_t& taken)
      : at_(at)
      , taken_(&taken) {}

  reference operator*() const { return *at_; }
  Bytes& operator++() {
    ++at_;
    ++*taken_;
    return *this;
  }
  bool operator==(const Bytes& other) const { return at_ == other.at_; }

private:
  const char* at_;
  std::size_t* taken_;
};

std::optional<JSONFault> JSONEvents::read(std::string_view text) {
  const auto mark = text.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
  text_ = text;
  taken_ = end_ = mark;
  depth_ = 0;
  fault_.reset();
  // Of no text at all, each release of the parser says something else.
  if (mark == text.size()) return JSONFault{"unexpected end of input", mark};
  nlohmann::json_sax<nlohmann::json>* events = this;
  nlohmann::json::sax_parse(Bytes(text.data() + mark, taken_),
                            Bytes(text.data() + text.size(), taken_), events);
  return fault_;
}

bool JSONEvents::refuse(std::string message) {
  fault_ = {std::move(message), begin_};
  return false;
}

// Of a number the parser has taken one byte too many by now, which never begins the next token.
void JSONEvents::beginToken() {
  begin_ = std::min(text_.find_first_not_of(kBetweenTokens, end_), text_.size());
  end_ = taken_;
}

bool JSONEvents::add(Value value) {
  beginToken();
  if (depth_ == 0) return refuse("this must be an array or a dictionary");
  if (depth_ > kMostOpen) return refuse("nested too deeply");
  scalar(std::move(value));
  return true;
}

bool JSONEvents::open(bool isDictionary) {
  beginToken();
  if (depth_++ > kMostOpen) return refuse("nested too deeply");
  opens(isDictionary);
  return true;
}

bool JSONEvents::close() {
  beginToken();
  --depth_;
  closes();
  return true;
}

bool JSONEvents::null() {
  return add({});
}

bool JSONEvents::boolean(bool value) {
  return add(value);
}

bool JSONEvents::number_integer(std::int64_t value) {
  return add(value);
}

bool JSONEvents::number_unsigned(std::uint64_t value) {
  if (value <= std::numeric_limits<std::int64_t>::max()) return add(value);
  return add(static_cast<double>(value));
}

bool JSONEvents::number_float(double value, const std::string& text) {
  if (text.find_first_of(".eE") != std::string::npos) return add(value);
  beginToken();
  return refuse("a number is too large");
}

bool JSONEvents::string(std::string& value) {
  return add(std::move(value));
}

bool JSONEvents::key(std::string& name) {
  beginToken();
  if (depth_ > kMostOpen) return refuse("nested too deeply");
  named(std::move(name));
  return true;
}

bool JSONEvents::start_object(std::size_t) {
  return open(true);
}

bool JSONEvents::end_object() {
  return close();
}

bool JSONEvents::start_array(std::size_t) {
  return open(false);
}

bool JSONEvents::end_array() {
  return close();
}

bool JSONEvents::parse_error(std::size_t, const std::string&,
                             const nlohmann::json::exception& error) {
  constexpr int kNumberOverflow = 406;
  beginToken();
  if (error.id == kNumberOverflow) return refuse("a number is too large");
  const std::string message = essenceOf(error.what());
  // A zero byte is an end to the parser as well.
  const bool atEnd = taken_ == text_.size() && message.starts_with("unexpected end of input");
  fault_ = {message, atEnd ? taken_ : taken_ - 1};
  return false;
}

} // namespace wrenvale::kit
