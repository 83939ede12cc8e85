#include "recommend/RecommenderDocument.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace wrenvale::recommend {

namespace {

constexpr std::int64_t kScoreOfDependency = 100;

template <Text Candidate::*field>
void readText(Candidate& candidate, std::size_t index) {
  candidate.*field = Text(candidate.entry, index);
}

template <class Entry, Entries<Entry> Candidate::*field>
void readEntries(Candidate& candidate, std::size_t index) {
  candidate.*field = Entries<Entry>(candidate.entry.at(index));
}

void readPriorityScore(Candidate& candidate, std::size_t index) {
  candidate.priorityScore = integerValue(candidate.entry.at(index));
}

struct Field {
  std::string_view key;
  void (*read)(Candidate& candidate, std::size_t index);
};

// In the order in which documents usually have them.
constexpr Field kFields[] = {
    {"bundle_id", readText<&Candidate::bundleID>},
    {"sp_name", readText<&Candidate::name>},
    {"sp_icon", readText<&Candidate::icon>},
    {"brick", readText<&Candidate::brick>},
    {"media", readText<&Candidate::media>},
    {"sp_description", readText<&Candidate::description>},
    {"sp_link_name", readText<&Candidate::linkName>},
    {"link", readText<&Candidate::link>},
    {"group", readText<&Candidate::group>},
    {"alert_text", readText<&Candidate::alertText>},
    {"alert_link", readText<&Candidate::alertLink>},
    {"alert_link_name", readText<&Candidate::alertLinkName>},
    {"priority_score", readPriorityScore},
    {"exclude", readEntries<Text, &Candidate::exclude>},
    {"dependency", readEntries<Dependency, &Candidate::dependencies>},
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

Text::Text(const Value& parent, std::size_t index) {
  if (const auto view = parent.stringAt(index)) {
    view_ = view->data();
    size_ = view->size();
    present_ = true;
    return;
  }
  const Value value = parent.at(index);
  if (const auto* integer = value.integer()) write(*integer);
  if (const auto* real = value.real()) write(*real);
}

Text::Text(const Value& dictionary, std::string_view key) {
  if (const auto index = dictionary.indexOf(key)) *this = Text(dictionary, *index);
}

template <class Number>
void Text::write(Number number) {
  const auto end = std::to_chars(std::begin(digits_), std::end(digits_), number).ptr;
  size_ = static_cast<std::size_t>(end - digits_);
  present_ = true;
}

Text::operator std::optional<std::string_view>() const {
  return present_ ? std::optional(**this) : std::nullopt;
}

std::int64_t Dependency::score() const {
  const auto index = entry_.indexOf("dependency_score");
  return index ? integerValue(entry_.at(*index)) : kScoreOfDependency;
}

std::optional<Text> Dependency::replacement(std::string_view key) const {
  const auto index = entry_.indexOf(key);
  return index ? std::optional(Text(entry_, *index)) : std::nullopt;
}

// One pass over the entry, since asking it for each of fifteen keys costs a search each. The field
// after the last one found is tried first; that is nearly always the one.
Candidate::Candidate(Value value)
    : entry(std::move(value)) {
  const Field* next = std::begin(kFields);
  const std::size_t keys = entry.isDictionary() ? entry.size() : 0;
  for (std::size_t i = 0; i < keys; ++i) {
    const Field* field = fieldUnder(entry.keyAt(i), next);
    if (!field) continue;
    field->read(*this, i);
    next = field + 1;
  }
}

} // namespace wrenvale::recommend
