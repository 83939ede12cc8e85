// The two forms in which a preview is printed.

#include <utility>

#include "tools/wrenvale/json/JSONText.h"
#include "tools/wrenvale/preview/Preview.h"

namespace wrenvale::kit {

namespace {

using Text = std::optional<std::string>;

std::string jsonOf(const Text& text) {
  return text ? jsonString(*text) : "null";
}

// A JSON array or object, on one line when it is empty.
std::string bracketed(const char* brackets, const std::vector<std::string>& items,
                      const std::string& indent) {
  if (items.empty()) return brackets;
  std::string result(1, brackets[0]);
  for (const auto& item : items)
    result += (&item == &items[0] ? "\n" : ",\n") + indent + "  " + item;
  return result + "\n" + indent + brackets[1];
}

std::string jsonOf(const KVXAppRecommendation& record) {
  const std::pair<const char*, std::string> members[] = {
      {"bundleID", jsonOf(record.bundleID())},
      {"name", jsonOf(record.name())},
      {"points", std::to_string(record.points())},
      {"group", jsonOf(record.group())},
      {"link", jsonOf(record.link())},
      {"linkName", jsonOf(record.linkName())},
      {"iconURL", jsonOf(record.iconURL())},
      {"brickURL", jsonOf(record.brickURL())},
      {"mediaURL", jsonOf(record.mediaURL())},
      {"descr", jsonOf(record.descr())},
      {"alertText", jsonOf(record.alertText())},
      {"alertButtonName", jsonOf(record.alertButtonName())},
      {"alertLink", jsonOf(record.alertLink())},
  };
  std::vector<std::string> items;
  for (const auto& [key, value] : members)
    items.push_back(jsonString(key) + ": " + value);
  return bracketed("{}", items, "    ");
}

std::string jsonOfRecommendations(const Preview& preview) {
  if (!preview.recommendations) return "null";
  std::vector<std::string> items;
  for (const auto& app : *preview.recommendations)
    items.push_back(jsonOf(*app.record));
  return bracketed("[]", items, "  ");
}

std::string jsonOfLeftOut(const Preview& preview) {
  std::vector<std::string> items;
  for (const auto& app : preview.leftOut)
    items.push_back(R"({"bundleID": )" + jsonOf(app.bundleID) + R"(, "reason": )" +
                    jsonString(app.reason) + "}");
  return bracketed("[]", items, "  ");
}

std::string textOf(const PreviewedApp& app, std::size_t rank) {
  const auto& record = *app.record;
  const Text group = record.group();
  std::string result = "\n" + std::to_string(rank) + ". " + readable(formatted(record.name())) +
                       " (" + readable(formatted(record.bundleID())) +
                       "): " + std::to_string(record.points()) + " points" +
                       (group ? ", group " + readable(*group) : "") + "\n";
  for (const auto& reason : app.reasons)
    result += "     " + readable(reason) + "\n";
  if (const Text alert = record.alertText()) result += "     alert: " + readable(*alert) + "\n";
  return result;
}

std::string textOf(const LeftOutApp& app) {
  const std::string id = app.bundleID ? readable(*app.bundleID) : "an entry without an identifier";
  const bool named = !app.detail.empty();
  return "  " + id + ": " + app.reason + (named ? " (" + readable(app.detail) + ")" : "") + "\n";
}

} // namespace

std::string asJSON(const Preview& preview) {
  return bracketed("{}",
                   {std::string(R"("gate": )") + (preview.gate ? "true" : "false"),
                    std::string(R"("polite": )") + (preview.polite ? "true" : "false"),
                    R"("recommendations": )" + jsonOfRecommendations(preview),
                    R"("left_out": )" + jsonOfLeftOut(preview)},
                   "") +
         "\n";
}

std::string asText(const Preview& preview) {
  std::string result = std::string("Gate: ") + (preview.gate ? "open" : "closed") + ", " +
                       preview.gateReason + ".\n";
  if (!preview.recommendations) return result + "Nothing is recommended.\n";
  result += preview.polite ? "Alerts: suppressed, the host's entry says \"polite\".\n"
                           : "Alerts: allowed.\n";
  std::size_t rank = 0;
  for (const auto& app : *preview.recommendations)
    result += textOf(app, ++rank);
  if (rank == 0) result += "\nThe list is empty.\n";
  if (!preview.leftOut.empty()) result += "\nLeft out:\n";
  for (const auto& app : preview.leftOut)
    result += textOf(app);
  return result;
}

} // namespace wrenvale::kit
