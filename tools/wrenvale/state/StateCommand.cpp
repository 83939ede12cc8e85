// wrenvale state: what the framework has on record for this user of a host.

#include <getopt.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "core/PersistedKeys.h"
#include "platform/Platform.h"
#include "tools/wrenvale/Commands.h"
#include "tools/wrenvale/json/JSONDocument.h"

namespace wrenvale::kit {

namespace {

using nlohmann::json;

constexpr const char* kHelp =
    "Usage: wrenvale state IDENTIFIER [show] [--json]\n"
    "       wrenvale state IDENTIFIER reset\n"
    "       wrenvale state IDENTIFIER set KEY VALUE\n"
    "Show or change what the framework has on record for this user of the host with\n"
    "the bundle identifier IDENTIFIER. The host may be running: it sees the change at\n"
    "once, and neither loses what the other writes.\n\n"
    "  show    what is on record, a line for each key; as one JSON object with --json\n"
    "  reset   remove all of it, so that the next launch is a first one; what the\n"
    "          host keeps (\"Purchases\" and its own settings) stays\n"
    "  set     put the JSON value VALUE under KEY, such as true, 1203 or '\"1203\"';\n"
    "          null removes the key. Dates cannot be written.\n"
    "  --help  show this text\n\n"
    "The status is 0 when it was done, 1 when the settings cannot be read or written,\n"
    "2 for arguments that it does not understand.\n";

constexpr std::string_view kOwnKeys[] = {
    keys::kRecommenderLastVersion, keys::kRecommenderResetNumber, keys::kShowUpdateWindow,
    keys::kVersionRatings,         keys::kVersionCounters,        keys::kRateVersion};

int complain(const std::string& text, int status) {
  std::fprintf(stderr, "wrenvale state: %s\n", text.c_str());
  return status;
}

std::string asText(Date date) {
  const std::time_t seconds = std::chrono::system_clock::to_time_t(
      std::chrono::time_point_cast<std::chrono::system_clock::duration>(date));
  std::tm utc = {};
  char text[sizeof "2026-05-04T21:14:03Z"] = {};
  gmtime_r(&seconds, &utc);
  std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &utc);
  return text;
}

json asJSON(const Value& value) {
  if (const auto* boolean = value.boolean()) return *boolean;
  if (const auto* integer = value.integer()) return *integer;
  if (const auto* real = value.real()) return *real;
  if (const auto* string = value.string()) return *string;
  if (const auto* date = value.date()) return asText(*date);
  if (const auto* data = value.data()) return std::to_string(data->size()) + " bytes of data";
  json children = value.isDictionary() ? json::object() : value.isArray() ? json::array() : json();
  for (std::size_t i = 0; i < value.size(); ++i)
    if (value.isDictionary())
      children[std::string(value.keyAt(i))] = asJSON(value.at(i));
    else
      children.push_back(asJSON(value.at(i)));
  return children;
}

std::string dumped(const json& value, int indent = -1) {
  return value.dump(indent, ' ', false, json::error_handler_t::replace);
}

int show(const platform::UserDefaults& settings, bool inJSON) {
  json all = json::object();
  for (const auto key : kOwnKeys)
    if (const auto value = settings.objectForKey(key); !value.isNull())
      all[std::string(key)] = asJSON(value);
  if (inJSON) return std::puts(dumped(all, 2).c_str()) < 0 ? kFailed : kDone;
  for (const auto& [key, value] : all.items())
    std::printf("%-25s %s\n", key.c_str(), dumped(value).c_str());
  if (all.empty()) std::puts("Nothing is on record: the next launch is a first one.");
  return kDone;
}

int keep(platform::UserDefaults& settings) {
  return settings.synchronize() ? kDone : complain("cannot write the settings", kFailed);
}

int reset(platform::UserDefaults& settings) {
  for (const auto key : kOwnKeys)
    settings.removeObjectForKey(key);
  return keep(settings);
}

int set(platform::UserDefaults& settings, const std::string& key, const std::string& text) {
  if (std::ranges::find(kOwnKeys, key) == std::end(kOwnKeys)) {
    std::string known;
    for (const auto each : kOwnKeys)
      known += "\n  " + std::string(each);
    return complain("the framework keeps no \"" + key + "\"; its keys are" + known, kUsage);
  }
  const auto parsed = readJSON("[" + text + "]");
  if (!parsed.value || parsed.value->size() != 1) return complain("no JSON value: " + text, kUsage);
  const Value value = parsed.value->at(0);
  settings.setObject(value, key);
  if (!(settings.objectForKey(key) == value))
    return complain("settings hold no null within a value", kUsage);
  return keep(settings);
}

int perform(platform::UserDefaults& settings, const std::vector<std::string>& words, bool inJSON) {
  const auto& verb = words.size() > 1 ? words[1] : "show";
  if (!settings.canBeKept()) return complain("the settings cannot be read or written", kFailed);
  if (verb == "show" && words.size() <= 2) return show(settings, inJSON);
  if (verb == "reset" && words.size() == 2) return reset(settings);
  if (verb == "set" && words.size() == 4) return set(settings, words[2], words[3]);
  return complain("show, reset, or set with a key and a value ('--help' says more)", kUsage);
}

} // namespace

int state(int argc, char** argv) {
  static constexpr option kOptions[] = {{"json", no_argument, nullptr, 'j'},
                                        {"help", no_argument, nullptr, 'h'},
                                        {nullptr, 0, nullptr, 0}};
  bool inJSON = false;
  for (int found; (found = getopt_long(argc, argv, "h", kOptions, nullptr)) != -1;) {
    if (found == 'h') return std::fputs(kHelp, stdout) < 0 ? kFailed : kDone;
    if (found == '?') return kUsage;
    inJSON = true;
  }
  const std::vector<std::string> words(argv + optind, argv + argc);
  if (words.empty()) return complain("a bundle identifier is needed ('--help' says more)", kUsage);
  return perform(*platform::makeUserDefaults(words[0]), words, inJSON);
}

} // namespace wrenvale::kit
