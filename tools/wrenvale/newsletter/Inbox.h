// The newsletter subscriptions that a development server has taken in.

#ifndef WRENVALE_TOOLS_WRENVALE_NEWSLETTER_INBOX_H
#define WRENVALE_TOOLS_WRENVALE_NEWSLETTER_INBOX_H

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace wrenvale::kit {

struct InboxEntry {
  std::string address;
  std::string firstSeen;  ///< UTC, "2026-05-04T21:14:03Z"
  std::int64_t count = 1; ///< how often it came
};

/// "wrenvale/inbox.sqlite" in the user's data folder. Nothing when the environment names none.
std::filesystem::path defaultInbox();

/// An SQLite file, which only its owner may read. Several servers may share it; one waits for the
/// other, five seconds at the most. Both operations open the file anew, from any thread, and throw
/// std::runtime_error, which says why, when it cannot be had.
class Inbox {
public:
  explicit Inbox(std::filesystem::path file)
      : file_(std::move(file)) {}

  /// Notes the address and how often it came, which it returns. Capital letters make no other
  /// address of it. Makes the file, and the folders above it, when they are missing.
  std::int64_t add(const std::string& address) const;

  /// Every address once, the first that came first. Empty when there is no file.
  std::vector<InboxEntry> entries() const;

private:
  std::filesystem::path file_;
};

} // namespace wrenvale::kit

#endif
