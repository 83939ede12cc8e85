#include "welcome/ScriptBridge.h"

#include <algorithm>

#include "base/Log.h"
#include "welcome/KVXRecommenderWindowController.h"

namespace wrenvale::welcome {

namespace {

constexpr std::string_view kPrefix = "javascript_";

using Controller = KVXRecommenderWindowController;
using Arguments = std::vector<Value>;

struct Operation {
  std::string_view selector;
  Value (*perform)(Controller&, const Arguments&);

  std::size_t arguments() const {
    return static_cast<std::size_t>(std::count(selector.begin(), selector.end(), ':'));
  }
};

Value textOrNull(std::optional<std::string> text) {
  return text ? Value(std::move(*text)) : Value();
}

constexpr Operation kOperations[] = {
    {"javascript_ready",
     [](Controller& c, const Arguments&) { return c.javascript_ready(), Value(); }},
    {"javascript_log:",
     [](Controller& c, const Arguments& a) { return c.javascript_log(a[0]), Value(); }},
    {"javascript_beep",
     [](Controller& c, const Arguments&) { return c.javascript_beep(), Value(); }},
    {"javascript_showWindow",
     [](Controller& c, const Arguments&) { return c.javascript_showWindow(), Value(); }},
    {"javascript_setWidth:height:",
     [](Controller& c, const Arguments& a) {
       return c.javascript_setWidth(integerValue(a[0]), integerValue(a[1])), Value();
     }},
    {"javascript_subscribe:",
     [](Controller& c, const Arguments& a) { return Value(c.javascript_subscribe(a[0])); }},
    {"javascript_updating",
     [](Controller& c, const Arguments&) { return Value(c.javascript_updating()); }},
    {"javascript_appName",
     [](Controller& c, const Arguments&) { return Value(c.javascript_appName()); }},
    {"javascript_openAppstoreForApp",
     [](Controller& c, const Arguments&) { return c.javascript_openAppstoreForApp(), Value(); }},
    {"javascript_bundleVersion",
     [](Controller& c, const Arguments&) { return Value(c.javascript_bundleVersion()); }},
    {"javascript_bundleID",
     [](Controller& c, const Arguments&) { return textOrNull(c.javascript_bundleID()); }},
    {"javascript_countryCode",
     [](Controller& c, const Arguments&) { return Value(c.javascript_countryCode()); }},
    {"javascript_languageCode",
     [](Controller& c, const Arguments&) { return Value(c.javascript_languageCode()); }},
    {"javascript_checkSelector:",
     [](Controller& c, const Arguments& a) { return Value(c.javascript_checkSelector(a[0])); }},
};

} // namespace

std::optional<std::string_view> webScriptNameForSelector(std::string_view selector) {
  if (isSelectorExcludedFromWebScript(selector)) return std::nullopt;
  selector.remove_prefix(kPrefix.size());
  if (selector.find(':') != std::string_view::npos) selector.remove_suffix(1);
  return selector;
}

bool isSelectorExcludedFromWebScript(std::string_view selector) {
  return !selector.starts_with(kPrefix);
}

std::vector<platform::ScriptMethod> scriptMethods() {
  std::vector<platform::ScriptMethod> methods;
  for (const auto& operation : kOperations)
    methods.push_back({.name = std::string(*webScriptNameForSelector(operation.selector)),
                       .arguments = static_cast<int>(operation.arguments())});
  return methods;
}

bool hasScriptOperation(std::string_view selector) {
  return std::any_of(std::begin(kOperations), std::end(kOperations),
                     [&](const auto& operation) { return operation.selector == selector; });
}

std::optional<Value> performScriptOperation(Controller& controller, std::string_view name,
                                            const Arguments& arguments) {
  log::say("page", [&] { return "calls " + std::string(name); });
  for (const auto& operation : kOperations) {
    if (webScriptNameForSelector(operation.selector) != name) continue;
    if (arguments.size() >= operation.arguments()) return operation.perform(controller, arguments);
    auto padded = arguments;
    padded.resize(operation.arguments());
    return operation.perform(controller, padded);
  }
  log::say("page", [&] { return "there is no " + std::string(name); });
  return std::nullopt;
}

} // namespace wrenvale::welcome
