#include "desktop/qt/app/Logging.h"

#include <algorithm>

#include <unistd.h>

#include <QLoggingCategory>

#include "base/Log.h"

namespace wrenvale::platform {

namespace {

constexpr std::size_t kLongestLine = 1000;

// What a page or a server said must not move a terminal's cursor.
std::string printable(std::string line) {
  line.resize(std::min(line.size(), kLongestLine));
  std::replace_if(
      line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
  return line;
}

// In one piece, so that lines of several threads do not mix.
void writeToStandardError(const char* subject, const std::string& line) {
  const std::string text = std::string("wrenvale.") + subject + ": " + printable(line) + "\n";
  [[maybe_unused]] const auto written = ::write(STDERR_FILENO, text.data(), text.size());
}

void sayThroughQt(const char* subject, const std::string& line) {
  const std::string name = std::string("wrenvale.") + subject;
  const QLoggingCategory category(name.c_str(), QtWarningMsg);
  qCInfo(category, "%s", printable(line).c_str());
}

} // namespace

void listenToLog() {
  if (qEnvironmentVariableIntValue("WRENVALE_LOG") != 0)
    log::sink = writeToStandardError;
  else if (qgetenv("QT_LOGGING_RULES").contains("wrenvale"))
    log::sink = sayThroughQt;
}

} // namespace wrenvale::platform
