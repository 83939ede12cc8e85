#include "tools/wrenvale/VerbatimServer.h"

#include <poll.h>
#include <strings.h>
#include <sys/socket.h>
#include <unistd.h>

#include <string>
#include <string_view>

namespace wrenvale::kit {

namespace {

constexpr timeval kPatience{.tv_sec = 1, .tv_usec = 0};
constexpr std::string_view kUserAgent = "User-Agent:";

bool isReady(socket_t socket, short event) {
  pollfd state{.fd = socket, .events = event, .revents = 0};
  return poll(&state, 1, 0) == 1;
}

// The connection as httplib wants it, with the agent noted while the header passes by, one byte at
// a time.
class Connection : public httplib::Stream {
public:
  explicit Connection(socket_t socket)
      : socket_(socket) {
    setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &kPatience, sizeof kPatience);
    setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &kPatience, sizeof kPatience);
  }

  const std::string& userAgent() const { return userAgent_; }

  bool is_readable() const override { return isReady(socket_, POLLIN); }
  bool is_writable() const override { return isReady(socket_, POLLOUT); }
  ssize_t read(char* to, size_t size) override {
    const ssize_t got = recv(socket_, to, size, 0);
    if (got == 1) note(*to);
    return got;
  }
  ssize_t write(const char* from, size_t size) override {
    return send(socket_, from, size, MSG_NOSIGNAL);
  }
  void get_remote_ip_and_port(std::string&, int&) const override {}
  void get_local_ip_and_port(std::string&, int&) const override {}
  socket_t socket() const override { return socket_; }

private:
  void note(char c) {
    if (c != '\n') {
      line_ += c;
      return;
    }
    if (strncasecmp(line_.c_str(), kUserAgent.data(), kUserAgent.size()) == 0) noteUserAgent();
    line_.clear();
  }

  void noteUserAgent() {
    constexpr const char* blanks = " \t\r";
    const auto first = line_.find_first_not_of(blanks, kUserAgent.size());
    const auto last = line_.find_last_not_of(blanks);
    userAgent_ = first == std::string::npos ? "" : line_.substr(first, last + 1 - first);
  }

  const socket_t socket_;
  std::string line_;
  std::string userAgent_;
};

} // namespace

bool VerbatimServer::process_and_close_socket(socket_t socket) {
  Connection connection(socket);
  bool closed = false;
  const bool well = process_request(connection, true, closed, [&](httplib::Request& request) {
    request.headers.erase("User-Agent");
    request.headers.emplace("User-Agent", connection.userAgent());
  });
  shutdown(socket, SHUT_RDWR);
  close(socket);
  return well;
}

} // namespace wrenvale::kit
