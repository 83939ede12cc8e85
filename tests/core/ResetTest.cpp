#include "core/Reset.h"

#include <gtest/gtest.h>

namespace wrenvale {
namespace {

using D = Value::Dictionary;

Value automatic(const char* id = "com.example.host") {
  return D{{"bundle_id", id}, {"reset_mode", "auto"}};
}

Value generation(Value number, Value lowest, Value highest, const char* id = "com.example.host") {
  return D{{"bundle_id", id},
           {"reset_number", std::move(number)},
           {"min_build_number", std::move(lowest)},
           {"max_build_number", std::move(highest)}};
}

struct Row {
  const char* what;
  Value document;
  ResetState state;
  std::optional<Value> number;
  bool show;
};

// Build 150 of a host that ran build 150 before and applied generation 3.
ResetState known() {
  return {.bundleID = "com.example.host",
          .bundleVersion = 150,
          .firstRun = false,
          .showUpdateWindow = false,
          .lastVersion = 150,
          .resetNumber = 3};
}

ResetState updated() {
  auto state = known();
  state.lastVersion = 149;
  return state;
}

ResetState firstRun() {
  auto state = known();
  state.firstRun = true;
  state.lastVersion = {};
  state.resetNumber = {};
  return state;
}

ResetState owed(ResetState state) {
  state.showUpdateWindow = true;
  return state;
}

ResetState withBundleID(std::optional<std::string> id) {
  auto state = updated();
  state.bundleID = std::move(id);
  return state;
}

ResetState withResetNumber(Value number) {
  auto state = known();
  state.resetNumber = std::move(number);
  return state;
}

TEST(Reset, Decision) {
  using A = Value::Array;
  const Value both = A{automatic(), generation(4, 100, 200)};
  const Row rows[] = {
      {"update", A{automatic()}, updated(), {}, true},
      {"an update leaves the generation alone", both, updated(), {}, true},
      {"no update", A{automatic()}, known(), {}, false},
      {"no update, generation", both, known(), 4, true},
      {"update already owed", both, owed(updated()), 4, false},
      {"first run", both, firstRun(), 4, false},
      {"other mode",
       A{D{{"bundle_id", "com.example.host"}, {"reset_mode", "Auto"}}},
       updated(),
       {},
       false},
      {"other host", A{automatic("com.example.Host")}, updated(), {}, false},
      {"host without identifier",
       A{automatic(""), D{{"reset_mode", "auto"}}},
       withBundleID({}),
       {},
       false},
      {"lowest build", A{generation(4, 150, 200)}, known(), 4, true},
      {"highest build", A{generation(4, 100, 150)}, known(), 4, true},
      {"below", A{generation(4, 151, 200)}, known(), {}, false},
      {"above", A{generation(4, 100, 149)}, known(), {}, false},
      {"no highest", A{generation(4, 100, {})}, known(), {}, false},
      {"no lowest", A{generation(4, {}, 200)}, known(), 4, true},
      {"applied", A{generation(3, 100, 200)}, known(), {}, false},
      {"applied, written otherwise", A{generation("3", 100, 200)}, withResetNumber(3.7), {}, false},
      {"kept as it came: real", A{generation(4.5, 100, 200)}, known(), 4.5, true},
      {"a lower generation is another one", A{generation(2, 100, 200)}, known(), 2, true},
      {"zero never triggers at first", A{generation(0, 100, 200)}, withResetNumber({}), {}, false},
      {"none is zero", A{generation({}, 100, 200)}, known(), Value(), true},
      {"no number at all counts as none", A{generation(A{1}, 0, 200)}, known(), Value(), true},
      {"first match only", A{generation(3, 100, 200), generation(9, 100, 200)}, known(), {}, false},
      {"first in range", A{generation(9, 1, 2), generation(4, 100, 200)}, known(), 4, true},
      {"builds as text", A{generation(4, "100", "200")}, known(), 4, true},
      {"object", D{{"bundle_id", "com.example.host"}}, updated(), {}, false},
      {"odd entries", A{1, "x", {}, A{automatic()}, D{{"bundle_id", 5}}}, updated(), {}, false},
  };
  for (const auto& row : rows) {
    const auto outcome = resetOutcome(row.document, row.state);
    EXPECT_EQ(outcome.resetNumber, row.number) << row.what;
    EXPECT_EQ(outcome.showUpdateWindow, row.show) << row.what;
  }
}

} // namespace
} // namespace wrenvale
