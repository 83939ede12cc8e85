// The files of a served folder.

#ifndef WRENVALE_TOOLS_WRENVALE_CHECK_SITEFILES_H
#define WRENVALE_TOOLS_WRENVALE_CHECK_SITEFILES_H

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace wrenvale::kit {

/// The regular file that `path` names, a path as a client sent it, percent-decoded: it begins with
/// "/", and one that ends with "/" names the "index.html" there. Nothing when there is no such
/// file, when a part of the path begins with "." (so hidden files and folders stay hidden), or when
/// the file is, through symbolic links, outside `folder`.
std::optional<std::filesystem::path> siteFile(const std::filesystem::path& folder,
                                              std::string_view path);

/// The same for a request of a host: the newsletter page of a country that has none,
/// "/store/newsletter/index_<country>.html", is the page of no country, "index_EN.html".
std::optional<std::filesystem::path> answeringFile(const std::filesystem::path& folder,
                                                   std::string_view path);

/// The media type that the file's name stands for, text in UTF-8.
std::string contentType(const std::filesystem::path& file);

/// Hosts take no longer document, in bytes: what platform::URLLoading takes.
inline constexpr std::size_t kLongestDocument = 16 * 1024 * 1024;

/// All of the file, or its first `longest` bytes; nothing when it cannot be read.
std::optional<std::string> contentsOf(const std::filesystem::path& file,
                                      std::size_t longest = std::string::npos);

} // namespace wrenvale::kit

#endif
