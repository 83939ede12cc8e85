#include "tools/wrenvale/serve/RequestLog.h"

namespace wrenvale::kit {

namespace {

bool isPlain(char c) {
  return c >= ' ' && c <= '~' && c != '"' && c != '\\';
}

std::string orDash(std::string text) {
  return text.empty() ? "-" : text;
}

} // namespace

std::string escaped(std::string_view text) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string result;
  for (const char c : text) {
    if (isPlain(c)) {
      result += c;
      continue;
    }
    const auto byte = static_cast<unsigned char>(c);
    result.append("\\x").append({digits[byte >> 4U], digits[byte & 15U]});
  }
  return result;
}

std::string logLine(const AnsweredRequest& request) {
  return request.time + " " + std::to_string(request.status) + " " +
         orDash(escaped(request.method)) + " " + orDash(escaped(request.target)) + " \"" +
         orDash(escaped(request.userAgent)) + "\"";
}

} // namespace wrenvale::kit
