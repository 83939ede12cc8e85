// Starting a real host, with a home and settings of its own.

#ifndef WRENVALE_TESTS_ACCEPTANCE_HOSTPROCESS_H
#define WRENVALE_TESTS_ACCEPTANCE_HOSTPROCESS_H

#include <chrono>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "base/Value.h"
#include "tests/desktop/linux/TemporaryFolder.h"

namespace wrenvale::tests {

struct Run {
  int status = -1; ///< exit status, or 1000 plus the signal that ended the process
  std::string output;
  std::string errors;
  std::chrono::milliseconds time{};
};

/// A user's home directory in a temporary folder, removed at the end.
class Home {
public:
  /// Runs a program to its end as this user, in an American English locale and without a display.
  Run run(const std::string& program, const std::vector<std::string>& arguments = {},
          const std::map<std::string, std::string>& environment = {}) const;

  std::filesystem::path folder() const { return folder_.path(); }
  /// The settings as they are on disk; null when there is no readable file.
  Value defaults(const std::string& identifier) const;
  void setDefaults(const std::string& identifier, const Value::Dictionary& settings) const;

private:
  platform::TemporaryFolder folder_;
};

} // namespace wrenvale::tests

#endif
