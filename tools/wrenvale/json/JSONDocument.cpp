#include "tools/wrenvale/json/JSONDocument.h"

#include <utility>
#include <vector>

#include "tools/wrenvale/json/JSONEvents.h"

namespace wrenvale::kit {

namespace {

class Builder final : public JSONEvents {
public:
  Value result() { return std::move(result_); }

private:
  struct Container {
    bool isDictionary;
    Value::Array array{};
    Value::Dictionary dictionary{};
    std::string key{}; // of the child that comes
  };

  void scalar(Value value) override { add(std::move(value)); }
  void opens(bool isDictionary) override { open_.push_back({.isDictionary = isDictionary}); }
  void named(std::string key) override { open_.back().key = std::move(key); }

  void closes() override {
    auto closed = std::move(open_.back());
    open_.pop_back();
    add(closed.isDictionary ? Value(std::move(closed.dictionary)) : Value(std::move(closed.array)));
  }

  void add(Value value) {
    if (open_.empty())
      result_ = std::move(value);
    else if (auto& parent = open_.back(); parent.isDictionary)
      parent.dictionary.insert_or_assign(std::move(parent.key), std::move(value));
    else
      parent.array.push_back(std::move(value));
  }

  std::vector<Container> open_;
  Value result_;
};

} // namespace

JSONDocument readJSON(std::string_view text) {
  Builder builder;
  if (auto fault = builder.read(text))
    return {.value = {}, .error = std::move(fault->message), .errorOffset = fault->offset};
  return {.value = builder.result(), .error = {}};
}

} // namespace wrenvale::kit
