#include "tools/wrenvale/serve/RedirectPage.h"

namespace wrenvale::kit {

namespace {

std::string htmlEscaped(std::string_view text) {
  std::string result;
  for (const char c : text) {
    switch (c) {
    case '&':
      result += "&amp;";
      break;
    case '<':
      result += "&lt;";
      break;
    case '>':
      result += "&gt;";
      break;
    case '"':
      result += "&quot;";
      break;
    default:
      result += c;
    }
  }
  return result;
}

// Takes `prefix` off the front of `text`.
bool take(std::string_view prefix, std::string_view& text) {
  if (!text.starts_with(prefix)) return false;
  text.remove_prefix(prefix.size());
  return true;
}

std::string supportPage(std::string_view name) {
  const auto slash = name.find('/');
  const std::string locale(name.substr(0, slash));
  if (slash == std::string_view::npos) return "the general support page, for " + locale;
  return "the support page of " + std::string(name.substr(slash + 1)) + ", for " + locale;
}

// Where the address leads, in words; nothing for one that Wrenvale never opens.
std::optional<std::string> destination(std::string_view name) {
  if (name == "twitter") return "the maker's social feed";
  if (take("moreapps_", name))
    return "the list of the maker's applications, for " + std::string(name);
  if (take("support_", name)) return supportPage(name);
  return std::nullopt;
}

} // namespace

std::optional<std::string> redirectPage(std::string_view path) {
  auto name = path;
  if (!take(kRedirectFolder, name)) return std::nullopt;
  const auto where = destination(name);
  if (!where) return std::nullopt;
  return "<!DOCTYPE html>\n<html lang=\"en\">\n<head><meta charset=\"utf-8\">"
         "<title>Redirect</title></head>\n<body style=\"font-family: sans-serif; margin: 3em\">\n"
         "<h1>Redirect</h1>\n<p><code>" +
         htmlEscaped(path) + "</code></p>\n<p>A real server would send the browser on to <strong>" +
         htmlEscaped(*where) + "</strong>.</p>\n</body>\n</html>\n";
}

} // namespace wrenvale::kit
