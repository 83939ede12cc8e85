#include "core/Reset.h"

#include <gtest/gtest.h>

namespace wrenvale {
namespace {

using A = Value::Array;
using D = Value::Dictionary;

Value automatic(const char* id = "com.example.host") {
  return D{{"bundle_id", id}, {"reset_mode", "auto"}};
}

Value generation(Value number, Value lowest = 100, Value highest = 200) {
  return D{{"bundle_id", "com.example.host"},
           {"reset_number", std::move(number)},
           {"min_build_number", std::move(lowest)},
           {"max_build_number", std::move(highest)}};
}

// Build 150 of a host that ran this build last and applied this generation.
ResetState ran(Value lastVersion, Value resetNumber = 3, bool owed = false) {
  return {.bundleID = "com.example.host",
          .bundleVersion = 150,
          .firstRun = lastVersion.isNull(),
          .showUpdateWindow = owed,
          .lastVersion = lastVersion,
          .resetNumber = std::move(resetNumber)};
}

TEST(Reset, Decision) {
  const auto known = ran(150), updated = ran(149), firstRun = ran({}, {});
  const Value otherMode = D{{"bundle_id", "com.example.host"}, {"reset_mode", "Auto"}};
  const Value both = A{automatic(), generation(4)};
  const struct {
    const char* what;
    Value document;
    ResetState state;
    std::optional<Value> number;
    bool show;
  } rows[] = {
      {"an update leaves the generation alone", both, updated, {}, true},
      {"no update, generation", both, known, 4, true},
      {"update already owed", both, ran(149, 3, true), 4, false},
      {"first run", both, firstRun, 4, false},
      {"other mode", A{otherMode}, updated, {}, false},
      {"other host", A{automatic("com.example.Host")}, updated, {}, false},
      {"second entry", A{automatic("other"), automatic()}, updated, {}, true},
      {"lowest build", A{generation(4, 150)}, known, 4, true},
      {"highest build", A{generation(4, 100, 150)}, known, 4, true},
      {"below", A{generation(4, 151)}, known, {}, false},
      {"above", A{generation(4, 100, 149)}, known, {}, false},
      {"no highest", A{generation(4, 100, {})}, known, {}, false},
      {"no lowest, builds as text", A{generation(4, {}, "200")}, known, 4, true},
      {"applied, written otherwise", A{generation("3")}, ran(150, 3.7), {}, false},
      {"kept as it came: text", A{generation("4.5")}, known, "4.5", true},
      {"kept as it came: real", A{generation(4.5)}, known, 4.5, true},
      {"a lower generation is another one", A{generation(2)}, known, 2, true},
      {"zero never triggers at first", A{generation(0)}, ran(150, {}), {}, false},
      {"none is zero", A{generation({})}, known, Value(), true},
      {"no number at all counts as none", A{generation(A{1})}, known, Value(), true},
      {"first match only", A{generation(3), generation(9)}, known, {}, false},
      {"first in range", A{generation(9, 1, 2), generation(4)}, known, 4, true},
      {"generation after an update", A{generation(4)}, updated, 4, true},
      {"object", automatic(), updated, {}, false},
      {"odd entries", A{1, {}, A{automatic()}, D{{"bundle_id", 5}}}, updated, {}, false},
  };
  for (const auto& row : rows) {
    const auto outcome = resetOutcome(row.document, row.state);
    EXPECT_EQ(outcome.resetNumber, row.number) << row.what;
    EXPECT_EQ(outcome.showUpdateWindow, row.show) << row.what;
  }
  auto nameless = updated;
  nameless.bundleID.reset();
  const Value entries = A{automatic(""), D{{"reset_mode", "auto"}}};
  EXPECT_FALSE(resetOutcome(entries, nameless).showUpdateWindow);
}

} // namespace
} // namespace wrenvale
