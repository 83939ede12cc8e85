#include "tools/wrenvale/check/SiteFiles.h"

#include <algorithm>
#include <cctype>
#include <fstream>

namespace wrenvale::kit {

namespace {

namespace fs = std::filesystem;

bool isInside(const fs::path& folder, const fs::path& file) {
  return std::ranges::mismatch(folder, file).in1 == folder.end();
}

// The path as one relative to the served folder; nothing for a path that may not be served.
std::optional<fs::path> relativePath(std::string_view path) {
  if (!path.starts_with('/') || path.find('\0') != std::string_view::npos) return std::nullopt;
  if (path.find("/.") != std::string_view::npos) return std::nullopt;
  const auto name = std::min(path.find_first_not_of('/'), path.size());
  fs::path relative(path.substr(name));
  return path.ends_with('/') ? relative / "index.html" : relative;
}

// Two letters or three digits stand for a country.
bool isNewsletterPage(std::string_view path) {
  constexpr std::string_view begin = "/store/newsletter/index_", end = ".html";
  if (!path.starts_with(begin) || !path.ends_with(end)) return false;
  const auto length = path.size() - std::min(path.size(), begin.size() + end.size());
  const auto country = path.substr(begin.size(), length);
  return (country.size() == 2 || country.size() == 3) &&
         std::ranges::all_of(country, [](unsigned char c) { return std::isalnum(c) != 0; });
}

} // namespace

std::optional<fs::path> siteFile(const fs::path& folder, std::string_view path) {
  const auto relative = relativePath(path);
  if (!relative) return std::nullopt;
  std::error_code error;
  const auto root = fs::canonical(folder, error);
  if (error) return std::nullopt;
  const auto file = fs::canonical(root / *relative, error);
  if (error || !isInside(root, file) || !fs::is_regular_file(file, error)) return std::nullopt;
  return file;
}

std::optional<fs::path> answeringFile(const fs::path& folder, std::string_view path) {
  const auto file = siteFile(folder, path);
  if (file || !isNewsletterPage(path)) return file;
  return siteFile(folder, "/store/newsletter/index_EN.html");
}

std::string contentType(const fs::path& file) {
  static constexpr struct {
    std::string_view extension;
    const char* type;
  } kTypes[] = {{".html", "text/html; charset=utf-8"},
                {".css", "text/css; charset=utf-8"},
                {".js", "text/javascript; charset=utf-8"},
                {".txt", "text/plain; charset=utf-8"},
                {".json", "application/json"},
                {".svg", "image/svg+xml"},
                {".png", "image/png"},
                {".jpg", "image/jpeg"},
                {".jpeg", "image/jpeg"},
                {".gif", "image/gif"},
                {".ico", "image/x-icon"},
                {".woff2", "font/woff2"}};
  const std::string extension = file.extension();
  for (const auto& row : kTypes)
    if (extension == row.extension) return row.type;
  return "application/octet-stream";
}

std::optional<std::string> contentsOf(const fs::path& file, std::size_t longest) {
  std::ifstream stream(file, std::ios::binary);
  std::error_code error;
  if (!stream || fs::is_directory(file, error)) return std::nullopt;
  std::string contents;
  char piece[1U << 16U];
  while (contents.size() < longest && (stream.read(piece, sizeof piece), stream.gcount() > 0))
    contents.append(piece, static_cast<std::size_t>(stream.gcount()));
  contents.resize(std::min(contents.size(), longest));
  return contents;
}

} // namespace wrenvale::kit
