#include "core/Reset.h"

namespace wrenvale {

namespace {

bool isText(const Value& value, const std::optional<std::string>& text) {
  const auto* string = value.string();
  return string && text && *string == *text;
}

// A reset number is stored as it came, so only what counts as a number may come through.
Value resetNumberOf(const Value& entry) {
  const Value number = entry.find("reset_number");
  const bool readable = number.integer() || number.real() || number.boolean() || number.string();
  return readable ? number : Value();
}

bool appliesToBuild(const Value& entry, std::int64_t build) {
  return integerValue(entry.find("min_build_number")) <= build &&
         build <= integerValue(entry.find("max_build_number"));
}

bool isUpdateTrigger(const Value& entry, const ResetState& state) {
  return isText(entry.find("bundle_id"), state.bundleID) &&
         isText(entry.find("reset_mode"), "auto");
}

bool isGenerationTrigger(const Value& entry, const ResetState& state) {
  return isText(entry.find("bundle_id"), state.bundleID) &&
         appliesToBuild(entry, state.bundleVersion);
}

template <class Predicate>
Value firstEntry(const Value& document, const ResetState& state, Predicate applies) {
  for (std::size_t i = 0; document.isArray() && i < document.size(); ++i)
    if (Value entry = document.at(i); applies(entry, state)) return entry;
  return {};
}

} // namespace

bool ResetState::versionChanged() const {
  return lastVersion.isNull() || integerValue(lastVersion) != bundleVersion;
}

ResetOutcome resetOutcome(const Value& document, const ResetState& state) {
  // On a first run nothing is forced open, and what is owed already is not owed twice.
  const bool mayShow = !state.firstRun && !state.showUpdateWindow;

  if (state.versionChanged() && mayShow && !firstEntry(document, state, isUpdateTrigger).isNull())
    return {.resetNumber = std::nullopt, .showUpdateWindow = true};

  const Value entry = firstEntry(document, state, isGenerationTrigger);
  if (entry.isNull()) return {};
  const Value number = resetNumberOf(entry);
  if (integerValue(number) == integerValue(state.resetNumber)) return {};
  return {.resetNumber = number, .showUpdateWindow = mayShow};
}

} // namespace wrenvale
