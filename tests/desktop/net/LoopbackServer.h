// A web server on this machine that answers as a test tells it to, rightly or wrongly.

#ifndef WRENVALE_TESTS_DESKTOP_NET_LOOPBACKSERVER_H
#define WRENVALE_TESTS_DESKTOP_NET_LOOPBACKSERVER_H

#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace wrenvale::platform {

/// Listens on 127.0.0.1 at a port of its own. Its destruction ends all connections.
class LoopbackServer {
public:
  struct Connection {
    /// False once the client is gone.
    bool send(std::string_view bytes) const;
    /// Says nothing until the client is gone.
    void hang() const;
    /// The request line and the headers, in lower case.
    const std::string& head() const { return text; }

    const int socket;
    const std::string text;
  };

  /// Runs for each request, each on a thread of its own; the connection ends when it returns.
  using Script = std::function<void(Connection&)>;

  explicit LoopbackServer(Script script);
  explicit LoopbackServer(std::string answer);
  ~LoopbackServer();

  std::string url(std::string_view path = "/", std::string_view host = "127.0.0.1") const;
  /// The heads of all requests so far.
  std::vector<std::string> requests() const;

private:
  void serve(int socket);

  const Script script_;
  int listener_ = -1;
  int port_ = 0;
  mutable std::mutex mutex_;
  std::vector<int> sockets_;
  std::vector<std::string> requests_;
  std::vector<std::jthread> threads_;
  std::jthread acceptor_;
};

/// An answer with this body and its true length.
std::string answerWith(std::string_view body, std::string_view status = "200 OK",
                       std::string_view headers = {});

} // namespace wrenvale::platform

#endif
