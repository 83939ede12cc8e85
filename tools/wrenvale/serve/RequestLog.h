// One line for each request that the development server answered.

#ifndef WRENVALE_TOOLS_WRENVALE_SERVE_REQUESTLOG_H
#define WRENVALE_TOOLS_WRENVALE_SERVE_REQUESTLOG_H

#include <string>
#include <string_view>

namespace wrenvale::kit {

struct AnsweredRequest {
  std::string time; ///< as the line shows it
  int status;
  std::string method;
  std::string target;    ///< path and query, as they were sent
  std::string userAgent; ///< percent-decoded
};

/// The text as a terminal may show it: every byte that is no printable ASCII character, and the
/// quotation mark and the backslash, as "\x" and two hexadecimal digits.
std::string escaped(std::string_view text);

/// "2026-05-04 21:14:03 200 GET /store/reset_US_en.json \"Photo Tool/1204 ...\"", without an end
/// of line. What the client sent is escaped; a missing part is "-".
std::string logLine(const AnsweredRequest& request);

} // namespace wrenvale::kit

#endif
