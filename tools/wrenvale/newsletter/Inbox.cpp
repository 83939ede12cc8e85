#include "tools/wrenvale/newsletter/Inbox.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <stdexcept>

namespace wrenvale::kit {

namespace {

namespace fs = std::filesystem;

constexpr int kPatience = 5000; // milliseconds

constexpr const char* kTable = "CREATE TABLE IF NOT EXISTS subscription ("
                               "address TEXT NOT NULL UNIQUE COLLATE NOCASE, "
                               "first_seen TEXT NOT NULL, "
                               "count INTEGER NOT NULL)";
constexpr const char* kAdd = "INSERT INTO subscription "
                             "VALUES (?, strftime('%Y-%m-%dT%H:%M:%SZ', 'now'), 1) "
                             "ON CONFLICT (address) DO UPDATE SET count = count + 1 "
                             "RETURNING count";
constexpr const char* kList = "SELECT address, first_seen, count FROM subscription ORDER BY rowid";

struct Close {
  void operator()(sqlite3* database) const { sqlite3_close(database); }
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Database = std::unique_ptr<sqlite3, Close>;

[[noreturn]] void fail(const fs::path& file, const std::string& why) {
  throw std::runtime_error("cannot use the inbox " + file.string() + ": " + why);
}

// One SQL statement at work.
class Statement {
public:
  Statement(sqlite3& database, const char* sql)
      : database_(database) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(&database, sql, -1, &statement, nullptr) != SQLITE_OK) fail();
    statement_.reset(statement);
  }

  void bind(const std::string& text) {
    sqlite3_bind_text(statement_.get(), 1, text.data(), static_cast<int>(text.size()),
                      SQLITE_STATIC);
  }

  // False when there is no further row.
  bool step() {
    const int result = sqlite3_step(statement_.get());
    if (result != SQLITE_ROW && result != SQLITE_DONE) fail();
    return result == SQLITE_ROW;
  }

  std::int64_t integer(int column) { return sqlite3_column_int64(statement_.get(), column); }

  std::string text(int column) {
    const auto* bytes = sqlite3_column_blob(statement_.get(), column);
    const auto size = sqlite3_column_bytes(statement_.get(), column);
    return bytes ? std::string(static_cast<const char*>(bytes), static_cast<std::size_t>(size))
                 : std::string();
  }

private:
  [[noreturn]] void fail() {
    const char* file = sqlite3_db_filename(&database_, nullptr);
    kit::fail(file ? file : "", sqlite3_errmsg(&database_));
  }

  sqlite3& database_;
  std::unique_ptr<sqlite3_stmt, Close> statement_;
};

Database opened(const fs::path& file, int flags) {
  sqlite3* handle = nullptr;
  const int result = sqlite3_open_v2(fs::absolute(file).c_str(), &handle, flags, nullptr);
  Database database(handle);
  if (result != SQLITE_OK) fail(file, sqlite3_errstr(result));
  sqlite3_busy_timeout(handle, kPatience);
  return database;
}

// SQLite itself would let everybody read the new file.
void makeFile(const fs::path& file) {
  std::error_code error;
  if (file.has_parent_path()) fs::create_directories(file.parent_path(), error);
  const int descriptor = open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
  if (descriptor < 0) fail(file, std::strerror(errno));
  close(descriptor);
}

} // namespace

fs::path defaultInbox() {
  const fs::path name = "wrenvale/inbox.sqlite";
  const char* data = std::getenv("XDG_DATA_HOME");
  if (data && fs::path(data).is_absolute()) return data / name;
  const char* home = std::getenv("HOME");
  return home && *home ? fs::path(home) / ".local/share" / name : fs::path();
}

std::int64_t Inbox::add(const std::string& address) const {
  makeFile(file_);
  const auto database = opened(file_, SQLITE_OPEN_READWRITE);
  Statement(*database, kTable).step();
  Statement addition(*database, kAdd);
  addition.bind(address);
  addition.step();
  const auto count = addition.integer(0);
  addition.step();
  return count;
}

std::vector<InboxEntry> Inbox::entries() const {
  std::error_code error;
  if (fs::status(file_, error).type() == fs::file_type::not_found) return {};
  const auto database = opened(file_, SQLITE_OPEN_READONLY);
  std::vector<InboxEntry> result;
  for (Statement rows(*database, kList); rows.step();)
    result.push_back(
        {.address = rows.text(0), .firstSeen = rows.text(1), .count = rows.integer(2)});
  return result;
}

} // namespace wrenvale::kit
