#include "recommend/RecommenderDocument.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace wrenvale::recommend {

namespace {

constexpr std::int64_t kScoreOfDependency = 100;

template <class Number>
std::string decimal(Number number) {
  char digits[32];
  const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
  return {digits, end};
}

template <Text Candidate::*field>
void readText(Candidate& candidate, Value value) {
  candidate.*field = Text(std::move(value));
}

template <class Entry, Entries<Entry> Candidate::*field>
void readEntries(Candidate& candidate, Value value) {
  candidate.*field = Entries<Entry>(std::move(value));
}

void readPriorityScore(Candidate& candidate, Value value) {
  candidate.priorityScore = integerValue(value);
}

struct Field {
  std::string_view key;
  void (*read)(Candidate& candidate, Value value);
};

// In the order of the keys, which is the order in which a dictionary has them.
constexpr Field kFields[] = {
    {"alert_link", readText<&Candidate::alertLink>},
    {"alert_link_name", readText<&Candidate::alertLinkName>},
    {"alert_text", readText<&Candidate::alertText>},
    {"brick", readText<&Candidate::brick>},
    {"bundle_id", readText<&Candidate::bundleID>},
    {"dependency", readEntries<Dependency, &Candidate::dependencies>},
    {"exclude", readEntries<Text, &Candidate::exclude>},
    {"group", readText<&Candidate::group>},
    {"link", readText<&Candidate::link>},
    {"media", readText<&Candidate::media>},
    {"priority_score", readPriorityScore},
    {"sp_description", readText<&Candidate::description>},
    {"sp_icon", readText<&Candidate::icon>},
    {"sp_link_name", readText<&Candidate::linkName>},
    {"sp_name", readText<&Candidate::name>},
};

// The field with this key, looked for from `hint` on and then from the start; null when there is
// none.
const Field* fieldUnder(std::string_view key, const Field* hint) {
  const auto isField = [key](const Field& field) { return field.key == key; };
  const auto* end = std::end(kFields);
  if (const auto* found = std::find_if(hint, end, isField); found != end) return found;
  const auto* found = std::find_if(std::begin(kFields), hint, isField);
  return found != hint ? found : nullptr;
}

} // namespace

Text::Text(Value value)
    : value_(std::move(value)) {
  if (value_.string()) return;
  if (const auto* integer = value_.integer())
    value_ = decimal(*integer);
  else if (const auto* real = value_.real())
    value_ = decimal(*real);
  else
    value_ = Value();
}

Text::operator std::optional<std::string_view>() const {
  const auto* string = value_.string();
  return string ? std::optional<std::string_view>(*string) : std::nullopt;
}

std::int64_t Dependency::score() const {
  if (!entry_.contains("dependency_score")) return kScoreOfDependency;
  return integerValue(entry_.find("dependency_score"));
}

std::optional<Text> Dependency::replacement(std::string_view key) const {
  if (!entry_.contains(key)) return std::nullopt;
  return Text(entry_.find(key));
}

// One pass over the entry, since asking a window for each of fifteen keys costs a search each. The
// field after the last one found is tried first; that is nearly always the one. A later value of a
// key that stands twice replaces the earlier one, as it does for find().
Candidate::Candidate(const Value& entry) {
  const Field* next = std::begin(kFields);
  for (std::size_t i = 0; entry.isDictionary() && i < entry.size(); ++i) {
    const Field* field = fieldUnder(entry.keyAt(i), next);
    if (!field) continue;
    field->read(*this, entry.at(i));
    next = field + 1;
  }
}

} // namespace wrenvale::recommend
