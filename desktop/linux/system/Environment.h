// Where the system parts look up environment variables, so that a test needs to change none, and
// how they take apart the short texts that variables and the system's files hold.

#ifndef WRENVALE_DESKTOP_LINUX_SYSTEM_ENVIRONMENT_H
#define WRENVALE_DESKTOP_LINUX_SYSTEM_ENVIRONMENT_H

#include <algorithm>
#include <functional>
#include <string_view>

namespace wrenvale::platform {

/// The value of the variable, null when it is not set. Like getenv(), whose limits hold too: a host
/// that changes its environment while other threads run breaks every reader.
using Environment = std::function<const char*(const char* name)>;

/// The value of the variable; empty when it is not set, since an empty one counts the same.
inline std::string_view variable(const Environment& environment, const char* name) {
  const char* value = environment(name);
  return value ? value : "";
}

/// Takes the text up to the first of the `separators` (a character, or a text of several) off
/// `text`, and that separator with it; all of the text when there is none.
inline std::string_view takeUpTo(auto separators, std::string_view& text) {
  const auto end = std::min(text.find_first_of(separators), text.size());
  const auto result = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return result;
}

/// The text without white space and zero bytes around it.
inline std::string_view trimmed(std::string_view text) {
  constexpr std::string_view kBlank(" \t\n\v\f\r\0", 7);
  text.remove_prefix(std::min(text.find_first_not_of(kBlank), text.size()));
  return text.substr(0, text.find_last_not_of(kBlank) + 1);
}

/// Whether a folder may have a file of this name: one step of a path, and nothing that misleads.
inline bool isPlainFileName(std::string_view name) {
  constexpr std::string_view kForbidden("/\0\n\r", 4);
  return !name.empty() && name != "." && name != ".." &&
         name.find_first_of(kForbidden) == std::string_view::npos;
}

} // namespace wrenvale::platform

#endif
