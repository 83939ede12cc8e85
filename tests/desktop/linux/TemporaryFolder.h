// A folder of a test's own, gone with everything in it when the test ends.

#ifndef WRENVALE_TESTS_DESKTOP_LINUX_TEMPORARYFOLDER_H
#define WRENVALE_TESTS_DESKTOP_LINUX_TEMPORARYFOLDER_H

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

namespace wrenvale::platform {

/// Empty when there is no such file.
inline std::string contentsOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

class TemporaryFolder {
public:
  TemporaryFolder() {
    auto pattern = (std::filesystem::temp_directory_path() / "wrenvale-XXXXXX").string();
    if (!::mkdtemp(pattern.data())) throw std::runtime_error("no temporary folder");
    path_ = pattern;
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  /// The absolute path of something in the folder; `name` may begin with "/".
  std::string path(std::string_view name = {}) const { return path_ + std::string(name); }

  void write(std::string_view name, std::string_view content) const {
    const std::filesystem::path file(path(name));
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
  }

private:
  std::string path_;
};

} // namespace wrenvale::platform

#endif
